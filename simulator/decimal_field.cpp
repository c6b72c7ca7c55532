#include "simulator/decimal_field.h"

#include <algorithm>
#include <cstdlib>

namespace simulator {

namespace {

constexpr int widestField = 9;  // more digits would not fit an int

}  // namespace

std::optional<int> parseDecimal(std::string_view text, int width) {
    if (width < 1 || width > widestField || text.size() != static_cast<std::size_t>(width)) return std::nullopt;
    int value = 0;
    for (const char digit : text) {
        if (digit < '0' || digit > '9') return std::nullopt;
        value = value * 10 + (digit - '0');
    }
    return value;
}

std::optional<int> parseSigned(std::string_view text, int width) {
    if (text.empty() || (text[0] != '+' && text[0] != '-')) return std::nullopt;
    const auto magnitude = parseDecimal(text.substr(1), width - 1);
    if (!magnitude) return std::nullopt;
    return text[0] == '-' ? -*magnitude : *magnitude;
}

std::string decimalField(int value, int width) {
    const std::string digits = std::to_string(value);
    const auto wanted = static_cast<std::size_t>(width);
    return digits.size() < wanted ? std::string(wanted - digits.size(), '0') + digits : digits;
}

std::string signedField(int value, int width) {
    return (value < 0 ? '-' : '+') + decimalField(std::abs(value), width - 1);
}

bool isPrintable(std::string_view text) {
    return std::ranges::all_of(text, [](char character) { return character >= ' ' && character <= '~'; });
}

}  // namespace simulator
