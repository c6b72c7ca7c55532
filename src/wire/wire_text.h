// Helpers for the fields of a response, which may be shorter than it should be.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvane {

// Converts a text of digits with an optional sign: "014" gives 14, "+5" gives 5. Gives nothing for any other text, such
// as "RM", "1 " or the empty text, nor for numbers too large for an int.
constexpr std::optional<int> decimal(std::string_view text) {
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    if (text.empty() || text.size() > 18) return std::nullopt;
    long long number = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') return std::nullopt;
        number = number * 10 + (c - '0');
    }
    if (negative) number = -number;
    if (number < -2147483647LL - 1 || number > 2147483647LL) return std::nullopt;
    return static_cast<int>(number);
}

// The same, but 0 for a text that is not a number.
constexpr int decimalOrZero(std::string_view text) { return decimal(text).value_or(0); }

// The last `count` bytes, or all of a shorter text.
constexpr std::string_view lastOf(std::string_view text, std::size_t count) {
    return text.size() > count ? text.substr(text.size() - count) : text;
}

// `count` bytes from position `first`, counted from 1 as in the transceiver's tables; fewer or none if the text is too
// short.
constexpr std::string_view positions(std::string_view text, std::size_t first, std::size_t count) {
    return first > text.size() ? std::string_view{} : text.substr(first - 1, count);
}

// Whether every byte is ASCII. Noise can turn a field into longer characters of UTF-8, which must not be cut in the
// middle.
constexpr bool isAscii(std::string_view text) {
    for (const char c : text)
        if (static_cast<unsigned char>(c) >= 0x80) return false;
    return true;
}

// The text without white space at both ends.
constexpr std::string_view trimmed(std::string_view text) {
    constexpr std::string_view whiteSpace = " \t\r\n\v\f";
    const std::size_t first = text.find_first_not_of(whiteSpace);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(whiteSpace) - first + 1);
}

// The text without every occurrence of `part`.
constexpr std::string without(std::string_view text, std::string_view part) {
    std::string rest;
    for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part)) {
        rest += text.substr(0, at);
        text.remove_prefix(at + part.size());
    }
    rest += text;
    return rest;
}

}  // namespace corvane
