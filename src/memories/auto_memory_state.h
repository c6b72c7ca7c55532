// Frequencies at which a signal was heard, newest first.
#pragma once

#include <string>
#include <vector>

namespace corvane {

// An auto memory has the same index in all three lists, which are always equally long.
struct AutoMemoryState {
    std::vector<std::string> vqAutoMemoryArray;  // nine digits of hertz, e.g. "014250000"
    std::vector<std::string> vqAutoModeArray;    // mode name, e.g. "USB"
    std::vector<std::string> vqAutoNotesArray;   // the operator's note; three blanks at first
    long long vqAutoMemSquelch = 10000;          // a frequency is recorded when vqSignal reaches this
};

}  // namespace corvane
