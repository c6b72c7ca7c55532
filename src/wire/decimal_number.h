// Numbers with a fraction, as they stand in texts.
#pragma once

#include <concepts>
#include <optional>
#include <string>
#include <string_view>

namespace corvane {

// The whole text as the nearest number of the type, double or float: digits with at most one decimal point, a sign
// before and an exponent behind them: "14.062", "+7", "-.5", "1e3". Nothing for any other text, "14,2" and "7.074.5",
// for white space around it, and for what is not finite or out of the type's range.
template <std::floating_point Number = double>
std::optional<Number> decimalNumber(std::string_view text);

// The same with 0 for what is no number.
double numberOrZero(std::string_view text);

// A finite number with so many digits after the point, rounded: 14.25 and 6 give "14.250000".
std::string withDecimals(double number, int count);

// The shortest decimal text that reads back as the same finite number, always with a fraction: 45 gives "45.0".
std::string shortestDecimal(float number);

}  // namespace corvane
