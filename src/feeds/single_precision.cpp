#include "feeds/single_precision.h"

#include <charconv>
#include <cmath>

namespace corvane {

namespace {

constexpr float mostHertz = 1e15F;

}  // namespace

std::optional<float> singlePrecision(std::string_view text) {
    float number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size() || !std::isfinite(number)) return std::nullopt;
    return number;
}

std::optional<long long> hertz(std::string_view text, float factor) {
    const auto number = singlePrecision(text);
    if (!number) return std::nullopt;
    const float product = *number * factor;
    if (!(product >= 0 && product < mostHertz)) return std::nullopt;
    return static_cast<long long>(product);
}

}  // namespace corvane
