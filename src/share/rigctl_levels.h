// Levels and functions under the names of the NET rigctl protocol: one row each, with what a value means on the line.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "share/shared_item.h"

namespace corvane {

struct RigctlLevel {
    std::string_view name;
    int bit;  // in the masks of the protocol
    Item item;
    std::string_view command;  // sets it, with `digits` digits and `end` behind; empty: it can only be read
    int digits;
    std::string_view end;
    bool fraction;                              // 0 to 1 with six decimals; else a whole number
    double (*read)(int reported);               // what the line's number means
    std::optional<int> (*write)(double value);  // the number on the line nearest to a value; nothing: invalid
};

std::optional<RigctlLevel> rigctlLevel(std::string_view name);
std::string rigctlLevelNames(bool toSet);
std::uint64_t rigctlLevelMask(bool toSet);

// A switch: 0 or 1.
struct RigctlFunction {
    std::string_view name;
    int bit;
    Item item;
    std::string_view command;  // "NB0", with `digits` digits behind
    int digits;
};

inline constexpr std::array rigctlFunctions{
    RigctlFunction{"NB", 1, Item::blanker, "NB0", 1},    RigctlFunction{"FBKIN", 7, Item::breakIn, "BI", 1},
    RigctlFunction{"ANF", 8, Item::autoNotch, "BC0", 1}, RigctlFunction{"NR", 9, Item::reduction, "NR0", 1},
    RigctlFunction{"MN", 13, Item::notch, "BP00", 3},
};
std::uint64_t rigctlFunctionMask();

// Whether the protocol knows a level or function of this name that the transceiver does not offer on the line.
bool isUnavailable(std::string_view name);

}  // namespace corvane
