#include "feeds/tune_command.h"

#include <algorithm>
#include <array>

#include "feeds/single_precision.h"
#include "wire/operating_modes.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr std::string_view scopeMode = "SS0640000;";
constexpr char lsb = voiceSideBands.lower;
constexpr char usb = voiceSideBands.upper;

struct ModeRow {
    ModeWords words;
    std::string_view mode;
    SideBands sideBands;
    bool setsKnob = true;  // the function knob goes with the mode
};

constexpr std::array modeRows{
    ModeRow{ModeWords::spots, "SSB", voiceSideBands},   ModeRow{ModeWords::spots, "CW", cwSideBands},
    ModeRow{ModeWords::spots, "FT8", {usb, usb}},       ModeRow{ModeWords::spots, "FT4", {usb, usb}},
    ModeRow{ModeWords::nets, "LSB", {lsb, lsb}, false}, ModeRow{ModeWords::nets, "USB", {usb, usb}, false},
    ModeRow{ModeWords::nets, "CW", cwSideBands},        ModeRow{ModeWords::nets, "FT8", {usb, usb}},
    ModeRow{ModeWords::nets, "FT4", {usb, usb}},
};

std::string modeCommands(const ModeRow& row, long long hertz) {
    const char code = row.sideBands.usual(hertz);
    std::string command = std::string("MD0") + code + ';';
    return row.setsKnob ? command.append(functionKnobSetting(code)) : command;
}

}  // namespace

std::string tuneCommandForSpot(long long hertz, std::string_view mode, ModeWords words, std::string_view vfo) {
    const bool eightDigits = hertz >= 10'000'000;
    const auto row =
        std::ranges::find_if(modeRows, [&](const ModeRow& each) { return each.words == words && each.mode == mode; });
    std::string command;
    if (row != modeRows.end()) command = modeCommands(*row, hertz);
    command.append("F").append(vfo).append(eightDigits ? "0" : "00").append(std::to_string(hertz)).append(";");
    return command.append(scopeMode);
}

std::string tuneCommandForStation(long long hertz, std::string_view vfo) {
    const std::string_view fill = hertz < 1'000'000 ? "000" : "00";
    return std::string("MD05;F").append(vfo).append(fill).append(std::to_string(hertz)).append(";").append(scopeMode);
}

std::string tuneCommandForNetLogger(std::string_view frequency, std::string_view vfo) {
    constexpr float highestMegahertz = 70.0F;
    constexpr float lowestUpperMegahertz = 10.0F;  // itself still in the lower side band
    float megahertz = singlePrecision(frequency).value_or(0);
    if (megahertz > highestMegahertz) megahertz /= 1000.0F;
    std::string digits = without(shortestDecimal(megahertz), ".");
    const bool lower = megahertz <= lowestUpperMegahertz;
    digits.resize(lower ? 7 : 8, '0');
    return std::string(lower ? "MD01;F" : "MD02;F")
        .append(vfo)
        .append(lower ? "00" : "0")
        .append(digits)
        .append(";")
        .append(scopeMode)
        .append("SS0560000;");
}

}  // namespace corvane
