// When a spot was made, and how old it is.
#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace corvane {

// "2026-11-23T14:03:12", UTC, and nothing after the seconds; nothing for any other text and for a time that is none.
std::optional<std::chrono::sys_seconds> spotTime(std::string_view text);

// Whole minutes from a spot's time to `now`: 119 s are 1. Below 0 for a spot that lies ahead by a minute or more.
long long spotAgeMinutes(std::chrono::system_clock::time_point now, std::chrono::sys_seconds spot);

}  // namespace corvane
