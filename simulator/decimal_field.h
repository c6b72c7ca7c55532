#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace simulator {

// The fixed-width fields of a command. "014250000" with width 9 is 14250000, "+00120" with width 6 and a sign is 120.

// The number of exactly `width` digits, at most 9; nothing for any other text.
std::optional<int> parseDecimal(std::string_view text, int width);

// A sign and `width` - 1 digits.
std::optional<int> parseSigned(std::string_view text, int width);

// The value with leading zeros.
std::string decimalField(int value, int width);

// A sign, also for zero ("+00"), and `width` - 1 digits.
std::string signedField(int value, int width);

// True for text of nothing but printable ASCII characters, blanks included.
bool isPrintable(std::string_view text);

}  // namespace simulator
