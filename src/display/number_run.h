// A run of numbers, each written in the same number of digits: "005" to "100".
#pragma once

#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace corvane {

// The numbers from `first` to `last` by `step`, in `digits` digits with leading zeros, with a sign before them if
// `sign` says so: {-20, 10, 1, 2, true} gives "-20" ... "+00" ... "+10". `step` is above 0; a last below the first
// gives none.
struct NumberRun {
    int first;
    int last;
    int step;
    int digits;
    bool sign = false;

    constexpr int size() const { return last < first ? 0 : (last - first) / step + 1; }
    constexpr bool has(int number) const { return number >= first && number <= last && (number - first) % step == 0; }
    std::string at(int index) const;
    std::optional<int> indexOf(std::string_view title) const;
    bool operator==(const NumberRun&) const = default;
};

// The number that a text begins with, sign included; moves the text behind it. Nothing for a text that begins with none
// and for a number that is too large.
constexpr std::optional<int> takeNumber(std::string_view& text) {
    std::string_view rest = text;
    if (rest.starts_with('+')) rest.remove_prefix(1);
    const bool negative = rest.starts_with('-');
    if (negative) rest.remove_prefix(1);
    if (rest.empty() || rest.front() < '0' || rest.front() > '9') return std::nullopt;
    long long number = 0;
    for (; !rest.empty() && rest.front() >= '0' && rest.front() <= '9'; rest.remove_prefix(1)) {
        number = number * 10 + (rest.front() - '0');
        if (number > std::numeric_limits<int>::max()) return std::nullopt;
    }
    text = rest;
    return static_cast<int>(negative ? -number : number);
}

// "0020..4000/20%4" gives {20, 4000, 20, 4}, "-20..+10/1%+2" {-20, 10, 1, 2, true}; nothing for any other text.
constexpr std::optional<NumberRun> numberRun(std::string_view text) {
    const auto skip = [&text](std::string_view what) {
        if (!text.starts_with(what)) return false;
        text.remove_prefix(what.size());
        return true;
    };
    const auto first = takeNumber(text);
    if (!first || !skip("..")) return std::nullopt;
    const auto last = takeNumber(text);
    if (!last || !skip("/")) return std::nullopt;
    const auto step = takeNumber(text);
    if (!step || *step < 1 || !skip("%")) return std::nullopt;
    const bool sign = skip("+");
    const auto digits = takeNumber(text);
    if (!digits || !text.empty()) return std::nullopt;
    return NumberRun{*first, *last, *step, *digits, sign};
}

}  // namespace corvane
