// The frequencies of the lists in hertz, computed in single precision.
#pragma once

#include <optional>
#include <string_view>

namespace corvane {

// The number in the text times `factor`, cut to whole hertz: "2.001" and 1'000'000 give 2000999. Nothing for text that
// is not a number, and for a result below 0 or far above any frequency.
std::optional<long long> hertz(std::string_view text, float factor);

}  // namespace corvane
