#pragma once

#include <array>
#include <string_view>

namespace simulator {

// An operating mode: its code on the line ("MD02;" is code 2), its name, and the speed that the automatic AGC chooses
// in it, as the digit answered to "GT0;" (4 fast, 5 mid, 6 slow).
struct OperatingMode {
    char code;
    std::string_view name;
    char automaticAgc;
};

inline constexpr std::array operatingModes{
    OperatingMode{'1', "LSB", '6'},     OperatingMode{'2', "USB", '6'},    OperatingMode{'3', "CW-U", '4'},
    OperatingMode{'4', "FM", '4'},      OperatingMode{'5', "AM", '5'},     OperatingMode{'6', "RTTY-L", '5'},
    OperatingMode{'7', "CW-L", '4'},    OperatingMode{'8', "DATA-L", '5'}, OperatingMode{'9', "RTTY-U", '5'},
    OperatingMode{'A', "DATA-FM", '4'}, OperatingMode{'B', "FM-N", '4'},   OperatingMode{'C', "DATA-U", '5'},
    OperatingMode{'D', "AM-N", '5'},    OperatingMode{'E', "PSK", '5'},    OperatingMode{'F', "DATA-FM-N", '4'},
};

// The mode of a code, or null.
constexpr const OperatingMode* modeOfCode(char code) {
    for (const OperatingMode& mode : operatingModes)
        if (mode.code == code) return &mode;
    return nullptr;
}

// The mode with exactly this name, or null.
constexpr const OperatingMode* modeOfName(std::string_view name) {
    for (const OperatingMode& mode : operatingModes)
        if (mode.name == name) return &mode;
    return nullptr;
}

constexpr bool isCw(char code) { return code == '3' || code == '7'; }

static_assert(operatingModes.size() == 15);

}  // namespace simulator
