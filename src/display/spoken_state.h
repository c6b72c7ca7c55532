// The state of the transceiver in words, as a screen reader says it.
#pragma once

#include <string>

#include "display/display.h"

namespace corvane {

inline constexpr std::string_view onAirText = "ON AIR";  // what onAirField shows while the transceiver transmits
inline constexpr std::string_view receivingText = "receiving";

std::string spokenMeter(int level);                // 0 to 10: "S7", "above S9"
std::string spokenTuning(const Display& display);  // of the active VFO: "14.250.000 MHz, USB", "7.185 MHz, LSB, memory
                                                   // M-02 40M PHONE"; empty before it is known
// "VFO A, 14.250.000 MHz, USB, S7, General", while transmitting "VFO A, 14.010.000 MHz, CW-U, on air, Extra CW, out of
// your segment"; what is not known is left out, and without a link that is said.
std::string spokenState(const Display& display);

}  // namespace corvane
