#pragma once

#include <cstddef>
#include <deque>
#include <map>
#include <string>
#include <string_view>

#include "simulator/transmission.h"

namespace simulator {

// A received command with its ";", and its time.
struct ReceivedCommand {
    Time at;
    std::string text;

    bool operator==(const ReceivedCommand&) const = default;
};

// The commands that the transceiver received: the last 10,000, and counts since the last clear().
class ReceivedLog {
public:
    static constexpr std::size_t capacity = 10'000;

    void add(Time at, std::string_view command);
    void clear();

    const std::deque<ReceivedCommand>& commands() const { return commands_; }
    std::size_t total() const { return total_; }

    // How many read and set commands of this two-letter name have come: "FA".
    std::size_t count(std::string_view name) const;

    // Counts by two-letter name; anything else is counted under "?".
    const std::map<std::string, std::size_t, std::less<>>& counts() const { return counts_; }

private:
    std::deque<ReceivedCommand> commands_;
    std::map<std::string, std::size_t, std::less<>> counts_;
    std::size_t total_ = 0;
};

}  // namespace simulator
