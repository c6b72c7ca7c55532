// Numbers with a fraction, taken from texts and written as texts.
#pragma once

#include <concepts>
#include <optional>
#include <string>
#include <string_view>

namespace corvane {

// Converts a whole text to the nearest double or float: digits with at most one decimal point, optionally a sign before
// them and an exponent after them, as in "14.062", "+7", "-.5" and "1e3". Gives nothing for any other text, such as
// "14,2", "7.074.5" or a number with white space around it, nor for "inf", "nan" and numbers out of the type's range.
template <std::floating_point Number = double>
std::optional<Number> decimalNumber(std::string_view text);

// The same, but 0 for a text that is not a number.
double numberOrZero(std::string_view text);

// A finite number rounded to `count` digits after the point: 14.25 and 6 give "14.250000".
std::string withDecimals(double number, int count);

// The shortest decimal text that reads back as the same finite number, with at least one digit after the point: 45
// gives "45.0".
std::string shortestDecimal(float number);

}  // namespace corvane
