// The transceiver's memory channels as the program holds them, and how far a read of them has come.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <string>

namespace corvane {

inline constexpr std::size_t tagLength = 12;  // characters; a command has exactly so many

// Row i is channel i + 1.
struct MemoryChannel {
    std::string frequency = " ";  // nine digits of hertz; any other length is an empty channel
    std::string mode = " ";       // mode code, one character
    std::string tag = " ";        // up to tagLength characters

    bool operator==(const MemoryChannel&) const = default;
};

inline constexpr int memoryChannels = 99;
using MemoryTable = std::array<MemoryChannel, memoryChannels>;

// A channel as the transceiver reported it, with what a table row does not keep.
struct ChannelAsRead {
    MemoryChannel row;
    std::string rest;  // clarifier, mode, tone and shift: what follows the frequency, e.g. "+000000210000"

    bool operator==(const ChannelAsRead&) const = default;
};
using ChannelsAsRead = std::array<ChannelAsRead, memoryChannels>;

struct MemoryState {
    MemoryState() { vqMemTagArray.fill(" "); }

    MemoryTable vqMemArray;
    std::array<std::string, memoryChannels> vqMemTagArray;  // tags by themselves, one blank each at first
    std::string vqMemRead = "0";                            // "run" while frequencies and modes are read
    std::string vqTagRead = "0";                            // "run" while tags are read
    int vqMemReadCnt = 0;                                   // replies handled in the present read
    int vqTagReadCnt = 0;
    unsigned readNumber = 0;               // grows with every read begun or lost, so that a late watch is known
    unsigned readSession = 0;              // the opening of the port in which a read was begun last
    bool whole = false;                    // whether the last read came to its end
    bool stalled = false;                  // whether the present read waits for an answer that does not come
    std::bitset<memoryChannels> answered;  // the rows that the present read has filled
    ChannelsAsRead asRead;                 // what the transceiver is known to hold
    bool unsaved = false;                  // whether that has changed since it was saved last
};

// The entry of the memory pop-up for row i: "M-05 20M FT8"; an empty channel shows "M-05" and two blanks.
std::string memoryPopUpTitle(int row, const MemoryChannel& channel);

// How far a read has come, in words and in replies handled; a whole read has 200.
struct MemoryReadProgress {
    bool running = false;
    int handled = 0;
    std::string text;  // "Reading frequencies, channel 37 of 99"
};
MemoryReadProgress memoryReadProgress(const MemoryState& memories);

// Whether a read is under way that has not come to a halt.
bool repliesAreComing(const MemoryState& memories);

}  // namespace corvane
