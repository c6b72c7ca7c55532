#include "feeds/spot_time.h"

#include <algorithm>

#include "wire/wire_text.h"

namespace corvane {

std::optional<std::chrono::sys_seconds> spotTime(std::string_view text) {
    using namespace std::chrono;
    constexpr std::string_view pattern = "dddd-dd-ddTdd:dd:dd";
    const bool fits = text.size() == pattern.size() && std::ranges::equal(text, pattern, [](char c, char expected) {
                          return expected == 'd' ? c >= '0' && c <= '9' : c == expected;
                      });
    if (!fits) return std::nullopt;
    const auto number = [&](std::size_t position, std::size_t digits) {
        return decimalOrZero(text.substr(position, digits));
    };
    const year_month_day date{year{number(0, 4)}, month{static_cast<unsigned>(number(5, 2))},
                              day{static_cast<unsigned>(number(8, 2))}};
    const int hour = number(11, 2), minute = number(14, 2), second = number(17, 2);
    if (!date.ok() || hour > 23 || minute > 59 || second > 59) return std::nullopt;
    return sys_days(date) + hours(hour) + minutes(minute) + seconds(second);
}

long long spotAgeMinutes(std::chrono::system_clock::time_point now, std::chrono::sys_seconds spot) {
    // In whole seconds: the years that a text can name do not fit into nanoseconds.
    const auto whole = std::chrono::floor<std::chrono::seconds>(now);
    long long seconds = (whole - spot).count();
    if (seconds < 0 && now > whole) ++seconds;  // cut toward zero
    return seconds / 60;
}

}  // namespace corvane
