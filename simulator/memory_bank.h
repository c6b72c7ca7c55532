#pragma once

#include <map>
#include <string>
#include <string_view>

#include "simulator/tuning.h"

namespace simulator {

// One memory channel. The tag has at most 12 characters and no blanks at its end.
struct MemoryChannel {
    Tuning tuning;
    std::string tag;
    bool tagShown = true;

    bool operator==(const MemoryChannel&) const = default;
};

// The memory channels: 1 to 99, which can be written and emptied, and the fixed group 501 to 505 on 5 MHz.
class MemoryBank {
public:
    static constexpr int lastChannel = 99;
    static constexpr std::size_t tagLength = 12;

    MemoryBank();

    // The channel, or null when it is empty or does not exist.
    const MemoryChannel* find(int channel) const;

    // Writes frequency and mode; the tag stays. Refused outside 1 to 99, for a frequency that the transceiver does not
    // cover and for an unknown mode.
    bool write(int channel, Tuning tuning);

    // Sets a written channel's tag: cut to 12 characters, without blanks at the end. Refused for an empty channel.
    bool writeTag(int channel, std::string_view tag, bool shown = true);

    // Empties a channel, which may be empty already. Refused outside 1 to 99.
    bool clear(int channel);

private:
    std::map<int, MemoryChannel> channels_;
};

}  // namespace simulator
