// The operating modes: the code character of the "MD" command ("MD02;" is USB) and the name that the program shows.
#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace corvane {

struct OperatingMode {
    char code;  // "1" to "9", "A" to "F"
    std::string_view name;
};

inline constexpr std::array operatingModes{
    OperatingMode{'1', "LSB"},     OperatingMode{'2', "USB"},    OperatingMode{'3', "CW-U"},
    OperatingMode{'4', "FM"},      OperatingMode{'5', "AM"},     OperatingMode{'6', "RTTY-L"},
    OperatingMode{'7', "CW-L"},    OperatingMode{'8', "DATA-L"}, OperatingMode{'9', "RTTY-U"},
    OperatingMode{'A', "DATA-FM"}, OperatingMode{'B', "FM-N"},   OperatingMode{'C', "DATA-U"},
    OperatingMode{'D', "AM-N"},    OperatingMode{'E', "PSK"},    OperatingMode{'F', "DATA-FM-N"},
};

static_assert(std::ranges::is_sorted(operatingModes, {}, &OperatingMode::code), "the pop-ups list them in code order");

// The modes that share their keyer memories: how these are read, stored and played, and what the keyer is called
// meanwhile.
struct ModeGroup {
    std::string_view codes;           // e.g. "37"
    std::string_view memoryRequests;  // reads the five memories, e.g. "KM1;KM2;KM3;KM4;KM5;"
    std::string_view storeCommand;    // in front of a memory's number and its text, e.g. "EM0"
    std::string_view boxTitle;        // e.g. "Send CW"
    std::array<std::string_view, 5> playCommands;
};

inline constexpr std::array modeGroups{
    ModeGroup{"37", "KM1;KM2;KM3;KM4;KM5;", "KM", "Send CW", {"KY6;", "KY7;", "KY8;", "KY9;", "KYA;"}},
    ModeGroup{"69", "EM01;EM02;EM03;EM04;EM05;", "EM0", "Send RTTY", {"EN01;", "EN02;", "EN03;", "EN04;", "EN05;"}},
    ModeGroup{"E", "EM11;EM12;EM13;EM14;EM15;", "EM1", "Send PSK", {"EN11;", "EN12;", "EN13;", "EN14;", "EN15;"}},
};
inline constexpr std::string_view noModeGroupBoxTitle = "Keyer / Encoder";

// The name for a code, or nothing: '2' gives "USB", '0' nothing.
constexpr std::optional<std::string_view> modeName(char code) {
    const auto mode = std::ranges::find(operatingModes, code, &OperatingMode::code);
    if (mode == operatingModes.end()) return std::nullopt;
    return mode->name;
}

// The code for a name, compared exactly: "USB" gives '2'; "usb" gives ' ', which the transceiver rejects.
constexpr char modeCode(std::string_view name) {
    const auto mode = std::ranges::find(operatingModes, name, &OperatingMode::name);
    return mode == operatingModes.end() ? ' ' : mode->code;
}

// The entry that a code selects in a mode pop-up: '1' gives 0, '9' gives 8; '0' gives -1, no entry; a letter gives 0.
constexpr int modePopUpIndex(char code) { return code >= '0' && code <= '9' ? code - '1' : 0; }

// The group of a mode code, or nullptr for a mode without keyer memories.
constexpr const ModeGroup* modeGroup(char code) {
    const auto group = std::ranges::find_if(
        modeGroups, [code](const ModeGroup& g) { return g.codes.find(code) != std::string_view::npos; });
    return group == modeGroups.end() ? nullptr : &*group;
}

}  // namespace corvane
