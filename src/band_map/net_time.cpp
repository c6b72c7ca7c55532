#include "band_map/net_time.h"

#include <algorithm>
#include <array>

#include "wire/wire_text.h"

namespace corvane {

namespace {

using namespace std::chrono;

constexpr std::array<std::string_view, 7> dayNames{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
constexpr unsigned everyDay = 0b1111111;
constexpr int soon = 60;  // minutes

std::optional<unsigned> dayNumber(std::string_view name) {
    const auto found = std::ranges::find(dayNames, name);
    return found == dayNames.end() ? std::nullopt : std::optional(static_cast<unsigned>(found - dayNames.begin()));
}

// "Wed", or "Fri-Mon" with the days between; one bit each, Sunday's the lowest.
std::optional<unsigned> dayBits(std::string_view word) {
    const std::size_t dash = word.find('-');
    const auto first = dayNumber(word.substr(0, dash));
    const auto last = dash == std::string_view::npos ? first : dayNumber(word.substr(dash + 1));
    if (!first || !last) return std::nullopt;
    unsigned bits = 1U << *first;
    for (unsigned day = *first; day != *last; bits |= 1U << day) day = (day + 1) % 7;
    return bits;
}

std::optional<unsigned> daysOf(std::string_view words) {
    if (words.empty()) return everyDay;
    unsigned days = 0;
    while (!words.empty()) {
        const std::size_t end = std::min(words.find(' '), words.size());
        const auto bits = dayBits(words.substr(0, end));
        if (!bits) return std::nullopt;
        days |= *bits;
        words = trimmed(words.substr(end));
    }
    return days;
}

std::optional<minutes> timeOf(std::string_view text) {
    constexpr std::string_view digits = "0123456789";
    if (text.size() != 5 || text[2] != ':' || text.find_first_not_of("0123456789:") != std::string_view::npos)
        return std::nullopt;
    const int hour = decimalOrZero(text.substr(0, 2)), minute = decimalOrZero(text.substr(3));
    if (digits.find(text[3]) == std::string_view::npos || hour > 23 || minute > 59) return std::nullopt;
    return hours(hour) + minutes(minute);
}

}  // namespace

std::optional<int> minutesToNet(std::string_view utc, system_clock::time_point now) {
    const std::string_view text = trimmed(utc);
    const std::size_t blank = std::min(text.find(' '), text.size());
    const auto time = timeOf(text.substr(0, blank));
    const auto meets = daysOf(trimmed(text.substr(blank)));
    if (!time || !meets) return std::nullopt;
    const sys_days today = floor<days>(now);
    // A session of yesterday may last beyond midnight; one of tomorrow may begin within the hour.
    for (const sys_days day : {today - days(1), today, today + days(1)}) {
        if ((*meets >> weekday(day).c_encoding() & 1U) == 0) continue;
        const auto left = ceil<minutes>(day + *time - now).count();
        if (left <= soon && day + *time + netLength > now) return static_cast<int>(left);
    }
    return std::nullopt;
}

}  // namespace corvane
