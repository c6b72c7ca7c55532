// The memory channels as the line knows them.
#pragma once

namespace corvane {

inline constexpr int memoryChannels = 99;  // "MC001;" to "MC099;"

}  // namespace corvane
