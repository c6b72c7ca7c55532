// The operating modes: one row each, with its code in commands and its names in pop-ups, keys and channel files.
#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace corvane {

// A group of modes that share five keyer memories: how these are read, stored and played, and the title of the keyer
// box.
struct ModeGroup {
    std::string_view memoryRequests;  // reads the five memories, e.g. "KM1;KM2;KM3;KM4;KM5;"
    std::string_view storeCommand;    // before a memory's number and its text, e.g. "EM0"
    std::string_view boxTitle;        // e.g. "Send CW"
    std::array<std::string_view, 5> playCommands;
};

inline constexpr std::array modeGroups{
    ModeGroup{"KM1;KM2;KM3;KM4;KM5;", "KM", "Send CW", {"KY6;", "KY7;", "KY8;", "KY9;", "KYA;"}},
    ModeGroup{"EM01;EM02;EM03;EM04;EM05;", "EM0", "Send RTTY", {"EN01;", "EN02;", "EN03;", "EN04;", "EN05;"}},
    ModeGroup{"EM11;EM12;EM13;EM14;EM15;", "EM1", "Send PSK", {"EN11;", "EN12;", "EN13;", "EN14;", "EN15;"}},
};
inline constexpr std::string_view noModeGroupBoxTitle = "Keyer / Encoder";

inline constexpr const ModeGroup* noGroup = nullptr;
inline constexpr const ModeGroup* cwGroup = &modeGroups[0];
inline constexpr const ModeGroup* rttyGroup = &modeGroups[1];
inline constexpr const ModeGroup* pskGroup = &modeGroups[2];

// The index of a group in modeGroups: 0 for cwGroup.
constexpr std::size_t groupIndex(const ModeGroup& group) {
    return static_cast<std::size_t>(&group - modeGroups.data());
}

struct OperatingMode {
    char code;                // in the "MD" command, "1" to "9" and "A" to "F": "MD02;" is USB
    std::string_view name;    // what the program shows
    const ModeGroup* group;   // noGroup: without keyer memories
    std::string_view inFile;  // its name in a channel file; a comment tells modes with the same name apart
    std::array<std::string_view, 6> fromFile;  // other names in files that mean this mode, in upper case
};

// In the order of the pop-ups: the index of an entry is the index of its row. The mode pop-up of a memory channel
// starts with one more entry, for no mode, whose code is '0'.
// clang-format off
inline constexpr std::array operatingModes{
    OperatingMode{'1', "LSB", noGroup, "LSB", {}},
    OperatingMode{'2', "USB", noGroup, "USB", {}},
    OperatingMode{'3', "CW-U", cwGroup, "CW", {"CW", "NCW", "CWU"}},
    OperatingMode{'4', "FM", noGroup, "FM", {}},
    OperatingMode{'5', "AM", noGroup, "AM", {}},
    OperatingMode{'6', "RTTY-L", rttyGroup, "RTTY", {"RTTY", "FSK"}},
    OperatingMode{'7', "CW-L", cwGroup, "CWR", {"CWR", "NCWR", "CWL", "CW-R"}},
    OperatingMode{'8', "DATA-L", noGroup, "DIG", {"DIGL", "PKTLSB", "LSB-D", "DATA-LSB"}},
    OperatingMode{'9', "RTTY-U", rttyGroup, "RTTYR", {"RTTYR", "FSKR", "RTTY-R"}},
    OperatingMode{'A', "DATA-FM", noGroup, "PKT", {"PKT", "PKTFM", "FM-D"}},
    OperatingMode{'B', "FM-N", noGroup, "NFM", {"NFM"}},
    OperatingMode{'C', "DATA-U", noGroup, "DIG", {"DIG", "DATA", "DIGU", "PKTUSB", "USB-D", "DATA-USB"}},
    OperatingMode{'D', "AM-N", noGroup, "NAM", {"NAM"}},
    OperatingMode{'E', "PSK", pskGroup, "DIG", {}},
    OperatingMode{'F', "DATA-FM-N", noGroup, "PKT", {}},
};
// clang-format on
inline constexpr char noModeCode = '0';

static_assert(std::ranges::equal(operatingModes, std::string_view("123456789ABCDEF"), {}, &OperatingMode::code),
              "the pop-ups need one row for each code, in this order");
// The row of a code, or nullptr: '2' gives the row of USB, '0' gives nullptr.
constexpr const OperatingMode* operatingMode(char code) {
    const auto mode = std::ranges::find(operatingModes, code, &OperatingMode::code);
    return mode == operatingModes.end() ? nullptr : &*mode;
}

// The name for a code, or nothing: '2' gives "USB", '0' nothing.
constexpr std::optional<std::string_view> modeName(char code) {
    const OperatingMode* mode = operatingMode(code);
    return mode ? std::optional(mode->name) : std::nullopt;
}

// The code for a name, compared exactly: "USB" gives '2'; "usb" gives ' ', which the transceiver rejects.
constexpr char modeCode(std::string_view name) {
    const auto mode = std::ranges::find(operatingModes, name, &OperatingMode::name);
    return mode == operatingModes.end() ? ' ' : mode->code;
}

// The entry that a code selects in the mode pop-up: '1' gives 0, '9' gives 8; '0' gives -1, no entry; a letter gives 0.
constexpr int modePopUpIndex(char code) { return code >= '0' && code <= '9' ? code - '1' : 0; }

// The group of a mode code, or nullptr for a mode without keyer memories.
constexpr const ModeGroup* modeGroup(char code) {
    const OperatingMode* mode = operatingMode(code);
    return mode ? mode->group : noGroup;
}

// The command that sets the function knob along with a mode: to the speed in CW, else to the RF power.
constexpr std::string_view functionKnobSetting(char code) { return modeGroup(code) == cwGroup ? "SF1H;" : "SF1E;"; }

// The mode codes of a lower and an upper side band. The upper one is usual from 10 MHz up.
struct SideBands {
    char lower;
    char upper;

    static constexpr int lowestUpper = 10'000'000;  // hertz
    constexpr char usual(long long hertz) const { return hertz >= lowestUpper ? upper : lower; }
};
inline constexpr SideBands voiceSideBands{modeCode("LSB"), modeCode("USB")};
inline constexpr SideBands cwSideBands{modeCode("CW-L"), modeCode("CW-U")};

}  // namespace corvane
