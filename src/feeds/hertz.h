// Frequencies of the lists, whose fractions single precision decides.
#pragma once

#include <optional>
#include <string_view>

namespace corvane {

// Text times factor in single precision, cut to whole hertz: "2.001" and 1'000'000 give 2000999. Nothing for text that
// is no number, for what is below 0 and for what no frequency could be.
std::optional<long long> hertz(std::string_view text, float factor);

}  // namespace corvane
