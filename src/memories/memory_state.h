// The transceiver's memory channels as the program holds them, and how far a read of them has come.
#pragma once

#include <array>
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

struct MemoryState {
    MemoryState() { vqMemTagArray.fill(" "); }

    std::array<MemoryChannel, memoryChannels> vqMemArray;
    std::array<std::string, memoryChannels> vqMemTagArray;  // tags by themselves, one blank each at first
    std::string vqMemRead = "0";                            // "run" while frequencies and modes are read
    std::string vqTagRead = "0";                            // "run" while tags are read
    int vqMemReadCnt = 0;                                   // replies handled in the present read
    int vqTagReadCnt = 0;
};

// The entry of the memory pop-up for row i: "M-05 20M FT8"; an empty channel shows "M-05" and two blanks.
std::string memoryPopUpTitle(int row, const MemoryChannel& channel);

}  // namespace corvane
