// The range of frequencies that may be typed, and the warnings for frequencies outside it.
#pragma once

#include <string_view>

namespace corvane {

inline constexpr double lowestMegahertz = 0.03;
inline constexpr double highestMegahertz = 75.0;

struct EntryWarning {
    std::string_view message;
    std::string_view detail;
};
inline constexpr EntryWarning frequencyTooLow{"Frequency must be in MHz and greater than 0.03", "Example: 0.860"};
inline constexpr EntryWarning frequencyTooHigh{"Frequency must be in MHz and less than 75.0", "Example: 14.235"};

}  // namespace corvane
