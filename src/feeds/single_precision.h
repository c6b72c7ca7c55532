// Frequencies of the lists, whose fractions single precision decides.
#pragma once

#include <optional>
#include <string_view>

namespace corvane {

// The whole text as a number: "14.062" and "1e3"; nothing for other text, "7.074.5" and what is not finite.
std::optional<float> singlePrecision(std::string_view text);

// Text times factor in single precision, cut to whole hertz: "2.001" and 1'000'000 give 2000999. Nothing for text that
// is no number, for what is below 0 and for what no frequency could be.
std::optional<long long> hertz(std::string_view text, float factor);

}  // namespace corvane
