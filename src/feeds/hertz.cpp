#include "feeds/hertz.h"

#include "wire/decimal_number.h"

namespace corvane {

namespace {

constexpr float mostHertz = 1e15F;

}  // namespace

std::optional<long long> hertz(std::string_view text, float factor) {
    const auto number = decimalNumber<float>(text);
    if (!number) return std::nullopt;
    const float product = *number * factor;
    if (!(product >= 0 && product < mostHertz)) return std::nullopt;
    return static_cast<long long>(product);
}

}  // namespace corvane
