// When a spot was made, and how old it is.
#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace corvane {

// The time of a text such as "2026-11-23T14:03:12", in UTC, which must end with the seconds. Nothing for any other text
// and for an impossible date or time.
std::optional<std::chrono::sys_seconds> spotTime(std::string_view text);

// Whole minutes from a spot's time to `now`: 119 s give 1. Below 0 for a spot that is a minute or more in the future.
long long spotAgeMinutes(std::chrono::system_clock::time_point now, std::chrono::sys_seconds spot);

}  // namespace corvane
