#pragma once

#include "simulator/radio_state.h"

namespace simulator {

// The transceiver at the start: VFO A on 14.250 MHz in USB, VFO B on 7.074 MHz, a dozen memory channels
// with tags, and texts of the station N0CALL in the text memories.
RadioState startState();

}  // namespace simulator
