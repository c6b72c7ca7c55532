// What the two sides receive, as the header shows it.
#pragma once

#include <optional>

#include "display/display.h"

namespace corvane {

// Hertz of a side, 'A' or 'B': of its memory channel while it is on one. Nothing before the first report.
std::optional<long long> shownHertz(const Display& display, char side);
// Of the side that is active.
std::optional<long long> activeHertz(const Display& display);

}  // namespace corvane
