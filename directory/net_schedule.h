// When a net meets.
#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace corvane::directory {

using Seconds = std::chrono::sys_seconds;

struct Schedule {
    unsigned days;              // bit 0 for Sunday to bit 6 for Saturday, days in UTC; at least one
    std::chrono::minutes time;  // of the day, in UTC

    bool operator==(const Schedule&) const = default;
};

// From "17:00" and "daily", or three-letter days and ranges of days with blanks between: "Mon Wed", "Mon-Fri Sun",
// "Sat-Mon". Nothing when either cannot be read.
std::optional<Schedule> scheduleOf(std::string_view utc, std::string_view days);

// A session counts as the next one until it has lasted this long: a check-in while the net is on confirms that session.
inline constexpr std::chrono::minutes sessionLength{60};

// The start of the session that is on at `now`, or else of the first one after it.
Seconds nextSession(const Schedule& schedule, Seconds now);

}  // namespace corvane::directory
