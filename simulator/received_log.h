#pragma once

#include <cstddef>
#include <deque>
#include <map>
#include <string>
#include <string_view>

#include "simulator/transmission.h"

namespace simulator {

// A command as it came in, with its ";", and when.
struct ReceivedCommand {
    Time at;
    std::string text;

    bool operator==(const ReceivedCommand&) const = default;
};

// What the transceiver received: the last 10,000 commands, and counts since the last clear().
class ReceivedLog {
public:
    static constexpr std::size_t capacity = 10'000;

    void add(Time at, std::string_view command);
    void clear();

    const std::deque<ReceivedCommand>& commands() const { return commands_; }
    std::size_t total() const { return total_; }

    // How often a command of this two-letter name came, as a read or to set: "FA".
    std::size_t count(std::string_view name) const;

    // Counts by two-letter name; what has no such name is counted under "?".
    const std::map<std::string, std::size_t, std::less<>>& counts() const { return counts_; }

private:
    std::deque<ReceivedCommand> commands_;
    std::map<std::string, std::size_t, std::less<>> counts_;
    std::size_t total_ = 0;
};

}  // namespace simulator
