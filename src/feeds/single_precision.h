// Frequencies and places as single-precision numbers, which decide how their fractions come out.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvane {

// The whole text as a number: "14.062" and "1e3"; nothing for other text, "7.074.5" and what is not finite.
std::optional<float> singlePrecision(std::string_view text);

// The shortest decimal text that reads back as the same number, always with a fraction: 45 gives "45.0".
std::string shortestDecimal(float number);

// Text times factor in single precision, cut to whole hertz: "2.001" and 1'000'000 give 2000999. Nothing for text that
// is no number, for what is below 0 and for what no frequency could be.
std::optional<long long> hertz(std::string_view text, float factor);

}  // namespace corvane
