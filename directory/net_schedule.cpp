#include "net_schedule.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace corvane::directory {

namespace {

using namespace std::chrono_literals;

constexpr std::array<std::string_view, 7> dayNames{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
constexpr unsigned everyDay = 0b1111111;

std::optional<unsigned> dayNumber(std::string_view name) {
    const auto found = std::ranges::find(dayNames, name);
    if (found == dayNames.end()) return {};
    return static_cast<unsigned>(found - dayNames.begin());
}

// "Wed", or "Fri-Mon" with the days between.
std::optional<unsigned> dayBits(std::string_view word) {
    const std::size_t dash = word.find('-');
    const auto first = dayNumber(word.substr(0, dash));
    const auto last = dash == std::string_view::npos ? first : dayNumber(word.substr(dash + 1));
    if (!first || !last) return {};
    unsigned bits = 1U << *first;
    for (unsigned day = *first; day != *last;) {
        day = (day + 1) % 7;
        bits |= 1U << day;
    }
    return bits;
}

std::optional<int> twoFigures(std::string_view text, int below) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool readable = error == std::errc{} && end == text.data() + 2 && text.size() == 2;
    if (!readable || number < 0 || number >= below) return {};
    return number;
}

}  // namespace

std::optional<Schedule> scheduleOf(std::string_view utc, std::string_view days) {
    if (utc.size() != 5 || utc[2] != ':') return {};
    const auto hour = twoFigures(utc.substr(0, 2), 24);
    const auto minute = twoFigures(utc.substr(3), 60);
    if (!hour || !minute || days.empty()) return {};
    Schedule schedule{0, *hour * 60min + *minute * 1min};
    if (days == "daily") {
        schedule.days = everyDay;
        return schedule;
    }
    while (!days.empty()) {
        const std::size_t end = std::min(days.find(' '), days.size());
        const auto bits = dayBits(days.substr(0, end));
        if (!bits) return {};
        schedule.days |= *bits;
        days.remove_prefix(std::min(end + 1, days.size()));
    }
    return schedule;
}

Seconds nextSession(const Schedule& schedule, Seconds now) {
    auto day = std::chrono::floor<std::chrono::days>(now - sessionLength);
    for (;; day += std::chrono::days(1)) {
        if ((schedule.days >> std::chrono::weekday(day).c_encoding() & 1U) == 0) continue;
        const Seconds start = day + schedule.time;
        if (start + sessionLength > now) return start;
    }
}

}  // namespace corvane::directory
