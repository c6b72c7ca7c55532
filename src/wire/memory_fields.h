// How many memory channels there are, and how long their tags.
#pragma once

#include <cstddef>

namespace corvane {

inline constexpr int memoryChannels = 99;  // "MC001;" to "MC099;"

inline constexpr int memoryReadSteps = 200;  // replies to a whole read: both its passes ask for channel 1 twice

inline constexpr std::size_t tagLength = 12;  // characters; a command always has all of them

}  // namespace corvane
