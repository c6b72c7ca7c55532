#pragma once

#include <string>
#include <vector>

#include "simulator/radio_state.h"

namespace simulator {

// Finds the changes of a transceiver's state that it reports unasked. Memory channels and texts are not reported, nor
// is the information record of the side that is not in use: a display that took it would show the wrong side.
class Reports {
public:
    explicit Reports(const RadioState& state);

    // The readings, without ";", that changed since the last call: {"IF000014251000+000000200000", "FA014251000"}
    // after the knob was turned. The side in use comes after the other, and its record before its frequency, so that a
    // display that takes them in order ends with the right side.
    std::vector<std::string> takeChanges(const RadioState& state);

private:
    std::vector<std::string> known_;
};

}  // namespace simulator
