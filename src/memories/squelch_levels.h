// The auto-memory squelch: how strong a signal must be for its frequency to be recorded.
#pragma once

#include <array>
#include <string_view>

namespace corvane {

struct SquelchLevel {
    std::string_view label;  // as on an S-meter, e.g. "S9+20"
    long long threshold;     // of the signal, in the units of vqSignal: meter reading times 1000
};

// By squelch index: an S unit is 10000, above S9+10 ten decibels are 25000.
inline constexpr std::array squelchLevels{
    SquelchLevel{"S0", 0},         SquelchLevel{"S1", 10000},     SquelchLevel{"S2", 20000},
    SquelchLevel{"S3", 30000},     SquelchLevel{"S4", 40000},     SquelchLevel{"S5", 50000},
    SquelchLevel{"S6", 60000},     SquelchLevel{"S7", 70000},     SquelchLevel{"S8", 80000},
    SquelchLevel{"S9", 90000},     SquelchLevel{"S9+10", 100000}, SquelchLevel{"S9+20", 125000},
    SquelchLevel{"S9+30", 150000}, SquelchLevel{"S9+40", 175000}, SquelchLevel{"S9+50", 200000},
    SquelchLevel{"S9+60", 225000},
};

// The level of an index. An index outside the table, which only a damaged setting can hold, is labelled "S1" and has a
// threshold of 10000 a step: 16 gives 160000.
constexpr SquelchLevel squelchLevel(int index) {
    if (index >= 0 && index < static_cast<int>(squelchLevels.size()))
        return squelchLevels[static_cast<std::size_t>(index)];
    return {"S1", index * 10000LL};
}

}  // namespace corvane
