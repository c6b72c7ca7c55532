// The commands of the virtual port that the transceiver has not dealt with yet, in the order in which they were sent.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "share/shared_values.h"

namespace corvane {

// A read ends with its answer. A setting has none: the question "AI;" is sent behind it, and an error response that
// comes before the answer "AI1;" is its own. That tells it from an error response to a memory channel's read.
struct PortExchange {
    std::string end;                // how the last response begins: "FA", "AI"
    bool reads = false;             // that response is the program's answer
    std::optional<Item> item = {};  // of a setting
    ShareTime sent{};
    bool abandoned = false;  // the program has left: what comes is for nobody
};

class PortExchanges {
public:
    static constexpr ShareTime patience{500};
    static constexpr std::string_view fence = "AI;";

    void begin(PortExchange exchange) { open_.push_back(std::move(exchange)); }
    // The exchange that the response, without its ";", belongs to. An error response belongs to the oldest one.
    std::optional<PortExchange> take(std::string_view response);
    void expire(ShareTime now);
    void abandon() {
        for (PortExchange& exchange : open_) exchange.abandoned = true;
    }
    void clear() { open_.clear(); }
    bool empty() const { return open_.empty(); }
    bool reading() const;  // an answer for the program is to come

private:
    std::deque<PortExchange> open_;
};

}  // namespace corvane
