#include "wire/decimal_number.h"

#include <array>
#include <charconv>
#include <cmath>

namespace corvane {

std::optional<double> decimalNumber(std::string_view text) {
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size() || !std::isfinite(number)) return std::nullopt;
    return number;
}

double numberOrZero(std::string_view text) { return decimalNumber(text).value_or(0); }

std::string withDecimals(double number, int count) {
    std::array<char, 400> text{};  // the longest number has 309 digits before the point
    const auto [end, error] =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed, count);
    return {text.data(), error == std::errc{} ? end : text.data()};
}

}  // namespace corvane
