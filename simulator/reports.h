#pragma once

#include <string>
#include <vector>

#include "simulator/radio_state.h"

namespace simulator {

// Watches a transceiver's state for what it reports by itself. Stored things (memory channels, texts) are not
// reported, nor is the information record of the side that is not in use: a display that believed it would show the
// wrong side.
class Reports {
public:
    explicit Reports(const RadioState& state);

    // The readings, without ";", that changed since the last call: {"IF000014251000+000000200000", "FA014251000"}
    // after the knob was turned. The side in use comes after the other and its record before its frequency, so that
    // one who follows them in order ends with the right picture.
    std::vector<std::string> takeChanges(const RadioState& state);

private:
    std::vector<std::string> known_;
};

}  // namespace simulator
