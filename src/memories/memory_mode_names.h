// What memory programming tools call the transceiver's modes: "CW", "NFM", "DIG".
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace corvane {

struct MemoryModeName {
    char code;              // of the transceiver, e.g. '3'
    std::string_view name;  // of the tools, e.g. "CW"
    bool exact = true;      // whether the name alone leads back to the code
};

// One row a mode, in the order of the codes. The tools have no name for some; these are written as the nearest there
// is.
inline constexpr std::array memoryModeNames{
    MemoryModeName{'1', "LSB"}, MemoryModeName{'2', "USB"},        MemoryModeName{'3', "CW"},
    MemoryModeName{'4', "FM"},  MemoryModeName{'5', "AM"},         MemoryModeName{'6', "RTTY"},
    MemoryModeName{'7', "CWR"}, MemoryModeName{'8', "DIG", false}, MemoryModeName{'9', "RTTYR"},
    MemoryModeName{'A', "PKT"}, MemoryModeName{'B', "NFM"},        MemoryModeName{'C', "DIG"},
    MemoryModeName{'D', "NAM"}, MemoryModeName{'E', "DIG", false}, MemoryModeName{'F', "PKT", false},
};

// Further names that files come with.
inline constexpr std::array otherMemoryModeNames{
    MemoryModeName{'3', "NCW"},      MemoryModeName{'7', "NCWR"},   MemoryModeName{'3', "CWU"},
    MemoryModeName{'7', "CWL"},      MemoryModeName{'7', "CW-R"},   MemoryModeName{'6', "FSK"},
    MemoryModeName{'9', "FSKR"},     MemoryModeName{'9', "RTTY-R"}, MemoryModeName{'C', "DATA"},
    MemoryModeName{'C', "DIGU"},     MemoryModeName{'8', "DIGL"},   MemoryModeName{'C', "PKTUSB"},
    MemoryModeName{'8', "PKTLSB"},   MemoryModeName{'A', "PKTFM"},  MemoryModeName{'C', "USB-D"},
    MemoryModeName{'8', "LSB-D"},    MemoryModeName{'A', "FM-D"},   MemoryModeName{'C', "DATA-USB"},
    MemoryModeName{'8', "DATA-LSB"},
};

// The row of a code, or nullptr for what is no code.
const MemoryModeName* memoryModeName(char code);

// The code for a mode as a file names it, small letters or capitals: a tool's name or the transceiver's own, "CW-U". A
// comment that is the transceiver's own name of a mode that is written as `mode` decides between those: "DIG" is 'C',
// with the comment "PSK" 'E'.
std::optional<char> memoryModeCode(std::string_view mode, std::string_view comment);

}  // namespace corvane
