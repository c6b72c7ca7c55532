// Codes of settings that are both read from the transceiver and sent to it.
#pragma once

#include <string_view>

namespace corvane {

// The functions of a knob: the position of a code is the index of its entry in the knob's pop-up.
inline constexpr std::string_view multiKnobCodes = "13489";
inline constexpr std::string_view functionKnobCodes = "014569CDEFGHIJKMN";

inline constexpr int lowestPower = 5;  // watts, the first entry of the transmit-power pop-up

}  // namespace corvane
