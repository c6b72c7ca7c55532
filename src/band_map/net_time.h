// When a net of the directory meets, as its UTC column says.
#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace corvane {

// How long a net counts as being on.
inline constexpr std::chrono::minutes netLength{60};

// Whole minutes until the session that is on at `now` or begins within the hour; 0 or less while it is on: at 16:40
// "17:00" gives 20, and at 17:05 it gives -5. `utc` is a time and, after a blank, the days of UTC on which the net
// meets: "17:00", "19:00 Mon-Sat", "13:30 Sat Sun". Nothing when the net meets at another time, and for a text that
// cannot be read.
std::optional<int> minutesToNet(std::string_view utc, std::chrono::system_clock::time_point now);

}  // namespace corvane
