// Frequencies at which a signal was heard, newest first.
#pragma once

#include <string>
#include <vector>

namespace corvane {

// An auto memory is the same index in the three lists, which always have one length.
struct AutoMemoryState {
    std::vector<std::string> vqAutoMemoryArray;  // nine digits of hertz, e.g. "014250000"
    std::vector<std::string> vqAutoModeArray;    // mode name, e.g. "USB"
    std::vector<std::string> vqAutoNotesArray;   // the operator's note; three blanks at first
    long long vqAutoMemSquelch = 10000;          // what vqSignal must reach for a frequency to be recorded
};

}  // namespace corvane
