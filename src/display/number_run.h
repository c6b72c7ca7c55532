// A run of numbers, each written in the same number of digits: "005" to "100".
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "wire/wire_text.h"

namespace corvane {

// The numbers from `first` to `last` by `step`, in `digits` digits with leading zeros, with a sign before them if
// `sign` says so: {-20, 10, 1, 2, true} gives "-20" ... "+00" ... "+10". `step` is above 0; with `last` below
// `first` the run is empty.
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

// "0020..4000/20%4" gives {20, 4000, 20, 4}, "-20..+10/1%+2" {-20, 10, 1, 2, true}; nothing for any other text.
constexpr std::optional<NumberRun> numberRun(std::string_view text) {
    const auto before = [&text](std::string_view separator) -> std::optional<int> {
        const std::size_t end = text.find(separator);
        if (end == std::string_view::npos) return std::nullopt;
        const auto number = decimal(text.substr(0, end));
        text.remove_prefix(end + separator.size());
        return number;
    };
    const auto first = before("..");
    const auto last = before("/");
    const auto step = before("%");
    const auto digits = decimal(text);
    if (!first || !last || !step || *step < 1 || !digits) return std::nullopt;
    return NumberRun{*first, *last, *step, *digits, text.starts_with('+')};
}

}  // namespace corvane
