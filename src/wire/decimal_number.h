// Numbers with a fraction, as they stand in texts.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvane {

// The whole text as a number: "14.062", "+7", "1e3"; nothing for other text, for blanks around it and for what is not
// finite.
std::optional<double> decimalNumber(std::string_view text);

// The same with 0 for what is no number.
double numberOrZero(std::string_view text);

// A finite number with so many digits after the point, rounded: 14.25 and 6 give "14.250000".
std::string withDecimals(double number, int count);

}  // namespace corvane
