// The transceiver's state as last reported. Values are kept as the text received, leading zeros included.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "wire/operating_modes.h"

namespace corvane {

// The names that begin with "vq" are the established ones of the program's state.
struct RadioState {
    std::string vqFreqA;            // VFO A in hertz, nine digits, e.g. "014250000"; empty before the first report
    std::string vqFreqB;            // VFO B
    std::string vqAorB = "B";       // the active VFO, "A" or "B"
    std::string vqModeA = "vfo";    // what tunes side A: "vfo" or "memory"
    std::string vqModeB = "vfo";    // side B
    std::string vqMode;             // name of the operating mode, e.g. "USB"
    std::string vqMemCh = "001";    // the memory channel reported last, three digits
    std::string vqMemChA = "001";   // the memory channel of side A
    std::string vqMemChB = "002";   // the memory channel of side B
    std::string vqMemFreq;          // the frequency of the channel in use, nine digits
    std::string vqMemATag;          // the tag of side A's channel
    std::string vqMemBTag;          // the tag of side B's channel
    std::string vqVFOA;             // VFO A as it is spoken: "1 4 dot 250"
    std::string vqVFOB;             // VFO B
    std::string vqAFLevel = "000";  // the last AF gain of 5 or more, three digits
    std::string vqRFLevel = "000";  // the last RF gain, three digits
    int vqMuted = 0;                // 1 while the AF gain is below 5
    int vqSignal = 0;               // the last six digits of the last meter report: meter reading times 1000
    std::array<std::string, 6> vqTextMemoryArray;  // keyer and text memories as last reported; 1 to 5 are used
    std::string vqTextMemoryRevert;                // memory 5 of whichever mode group was reported last
    // The same texts by mode group; nothing for a memory that has not been reported.
    std::array<std::array<std::optional<std::string>, 5>, modeGroups.size()> groupMemories;
};

}  // namespace corvane
