// Assembles whole responses from bytes that a serial driver cuts anywhere. It stands here as it knows how the line
// frames them; its owner is ListedPort in qt/platform.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace corvane {

// Takes chunks of any size and hands over one whole response at a time, its ";" included: "FA0142" and "50000;MD02;"
// give "FA014250000;" and "MD02;". Bytes without a ";" yet are held as the tail, at most `limit` of them; a longer run
// is noise and is dropped up to its ";". The owner calls `expire` when no bytes have come for `patience` after a chunk
// that left a tail.
class ResponseAssembler {
public:
    using Deliver = std::function<void(std::string_view response)>;

    static constexpr std::size_t limit = 256;  // bytes; the longest response is an encoder text of 55
    static constexpr int patience = 100;       // milliseconds

    explicit ResponseAssembler(Deliver deliver) : deliver_(std::move(deliver)) {}

    void feed(std::string_view bytes);
    bool holdsTail() const { return !tail_.empty() || skipping_; }

    // Hands over the tail without a ";", and starts anew.
    void expire();
    // Forgets the tail.
    void clear();

private:
    Deliver deliver_;
    std::string tail_;
    bool skipping_ = false;  // in a run that is too long, up to its ";"
};

}  // namespace corvane
