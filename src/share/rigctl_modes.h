// The operating modes under the names of the NET rigctl protocol.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "wire/operating_modes.h"

namespace corvane {

struct RigctlMode {
    std::string_view name;
    char code;     // of the "MD" command
    int bit;       // in the masks of the protocol
    int passband;  // hertz: the only one that programs can choose
};

inline constexpr std::array rigctlModes{
    RigctlMode{"AM", '5', 0, 9000},      RigctlMode{"CW", '3', 1, 500},       RigctlMode{"USB", '2', 2, 2400},
    RigctlMode{"LSB", '1', 3, 2400},     RigctlMode{"RTTY", '6', 4, 500},     RigctlMode{"FM", '4', 5, 16000},
    RigctlMode{"CWR", '7', 7, 500},      RigctlMode{"RTTYR", '9', 8, 500},    RigctlMode{"PKTLSB", '8', 10, 3000},
    RigctlMode{"PKTUSB", 'C', 11, 3000}, RigctlMode{"PKTFM", 'A', 12, 16000}, RigctlMode{"FMN", 'B', 21, 9000},
    RigctlMode{"AMN", 'D', 29, 6000},    RigctlMode{"PSK", 'E', 30, 500},     RigctlMode{"PKTFMN", 'F', 34, 9000},
};
static_assert(rigctlModes.size() == operatingModes.size());
static_assert(std::ranges::all_of(operatingModes, [](const OperatingMode& mode) {
    return std::ranges::count(rigctlModes, mode.code, &RigctlMode::code) == 1;
}));

constexpr std::uint64_t allRigctlModes() {
    std::uint64_t mask = 0;
    for (const RigctlMode& mode : rigctlModes) mask |= std::uint64_t{1} << mode.bit;
    return mask;
}

}  // namespace corvane
