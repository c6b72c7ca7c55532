#include "wire/decimal_number.h"

#include <fmt/core.h>

#include <array>
#include <charconv>
#include <cmath>

namespace corvane {

template <std::floating_point Number>
std::optional<Number> decimalNumber(std::string_view text) {
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size() || !std::isfinite(number)) return std::nullopt;
    return number;
}

template std::optional<double> decimalNumber(std::string_view text);
template std::optional<float> decimalNumber(std::string_view text);

double numberOrZero(std::string_view text) { return decimalNumber(text).value_or(0); }

std::string withDecimals(double number, int count) { return fmt::format("{:.{}f}", number, count); }

// fmt would write very large and very small numbers with an exponent.
std::string shortestDecimal(float number) {
    std::array<char, 64> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    std::string decimal(text.data(), error == std::errc{} ? end : text.data());
    if (decimal.find('.') == std::string::npos) decimal += ".0";
    return decimal;
}

}  // namespace corvane
