// Whole responses out of bytes that a serial driver cuts anywhere.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace corvane {

// Takes chunks of any size and hands over one whole response at a time, its ";" included: "FA0142" and "50000;MD02;"
// give "FA014250000;" and "MD02;". What has no ";" yet is held, at most `limit` bytes; a longer run is noise and is
// dropped up to its ";". The owner calls `expire` when nothing has come for `patience` after a chunk that left a tail.
class ResponseAssembler {
public:
    using Deliver = std::function<void(std::string_view response)>;

    static constexpr std::size_t limit = 256;  // bytes; the longest response is an encoder text of 55
    static constexpr int patience = 100;       // milliseconds

    explicit ResponseAssembler(Deliver deliver) : deliver_(std::move(deliver)) {}

    void feed(std::string_view bytes);
    bool holdsTail() const { return !tail_.empty() || skipping_; }

    // Hands over the tail as it stands, and starts afresh.
    void expire();
    // Forgets the tail.
    void clear();

private:
    Deliver deliver_;
    std::string tail_;
    bool skipping_ = false;  // in a run that was too long, until its ";"
};

}  // namespace corvane
