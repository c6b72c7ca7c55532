// A frequency as the voice guide says it.
#pragma once

#include <string>
#include <string_view>

namespace corvane {

// Takes nine digits of hertz. Says the digits of the megahertz one by one, then the kilohertz, then the hertz without
// trailing zeros: "014250000" gives "1 4 dot 250", "007074500" gives "7 dot 074 dot 5".
std::string spokenFrequency(std::string_view nineDigits);

}  // namespace corvane
