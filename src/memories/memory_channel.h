// One memory channel of the transceiver, and the table of all channels.
#pragma once

#include <array>
#include <string>

#include "wire/memory_fields.h"

namespace corvane {

// Row i is channel i + 1.
struct MemoryChannel {
    std::string frequency = " ";  // nine digits of hertz; any other length is an empty channel
    std::string mode = " ";       // mode code, one character
    std::string tag = " ";        // up to tagLength characters

    bool operator==(const MemoryChannel&) const = default;
};

using MemoryTable = std::array<MemoryChannel, memoryChannels>;

// A channel as the transceiver reported it, including what a table row does not keep.
struct ChannelAsRead {
    MemoryChannel row;
    std::string rest;  // clarifier, mode, tone and shift: what follows the frequency, e.g. "+000000210000"

    bool operator==(const ChannelAsRead&) const = default;
};
using ChannelsAsRead = std::array<ChannelAsRead, memoryChannels>;

}  // namespace corvane
