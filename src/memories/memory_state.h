// The transceiver's memory channels as the program holds them, and how far a read of them has come.
#pragma once

#include <array>
#include <optional>
#include <string>

namespace corvane {

// Row i is channel i + 1.
struct MemoryChannel {
    std::string frequency = " ";  // nine digits of hertz; any other length is an empty channel
    std::string mode = " ";       // mode code, one character
    std::string tag = " ";        // up to 12 characters

    bool operator==(const MemoryChannel&) const = default;
};

inline constexpr int memoryChannels = 99;
using MemoryTable = std::array<MemoryChannel, memoryChannels>;

struct MemoryState {
    MemoryState() { vqMemTagArray.fill(" "); }

    MemoryTable vqMemArray;
    std::array<std::string, memoryChannels> vqMemTagArray;  // tags by themselves, one blank each at first
    std::string vqMemRead = "0";                            // "run" while frequencies and modes are read
    std::string vqTagRead = "0";                            // "run" while tags are read
    int vqMemReadCnt = 0;                                   // replies handled in the present read
    int vqTagReadCnt = 0;
    unsigned readNumber = 0;              // grows with every read begun or lost, so that a late watch is known
    std::optional<MemoryTable> lastRead;  // what the last whole read found, until it has been saved
    bool saved = false;                   // whether anything has been saved since the start
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

}  // namespace corvane
