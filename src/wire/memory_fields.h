// The memory channels as the line knows them.
#pragma once

#include <cstddef>

namespace corvane {

inline constexpr int memoryChannels = 99;  // "MC001;" to "MC099;"

inline constexpr std::size_t tagLength = 12;  // characters; a command has exactly so many

}  // namespace corvane
