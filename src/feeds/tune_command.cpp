#include "feeds/tune_command.h"

#include <fmt/core.h>

#include <algorithm>
#include <array>

#include "wire/decimal_number.h"
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
    bool setsKnob = true;  // sets the function knob along with the mode
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
    return fmt::format("MD0{};{}", code, row.setsKnob ? functionKnobSetting(code) : "");
}

}  // namespace

std::string tuneCommandForSpot(long long hertz, std::string_view mode, ModeWords words, std::string_view vfo) {
    const auto row =
        std::ranges::find_if(modeRows, [&](const ModeRow& each) { return each.words == words && each.mode == mode; });
    const std::string modeCommand = row == modeRows.end() ? std::string() : modeCommands(*row, hertz);
    const std::string_view fill = hertz < SideBands::lowestUpper ? "00" : "0";
    return fmt::format("{}F{}{}{};{}", modeCommand, vfo, fill, hertz, scopeMode);
}

std::string tuneCommandForStation(long long hertz, std::string_view vfo) {
    const std::string_view fill = hertz < 1'000'000 ? "000" : "00";
    return fmt::format("MD05;F{}{}{};{}", vfo, fill, hertz, scopeMode);
}

namespace {

struct NetLoggerTuning {
    bool lower;          // side band
    std::string digits;  // nine, of hertz
};

NetLoggerTuning netLoggerTuning(std::string_view frequency) {
    constexpr float aboveIsKilohertz = 70.0F;
    float megahertz = decimalNumber<float>(frequency).value_or(0);
    if (megahertz > aboveIsKilohertz) megahertz /= 1000.0F;
    const std::string digits = without(shortestDecimal(megahertz), ".");
    // The digits are filled up or cut on the right. Unlike elsewhere, 10 MHz itself gets the lower side band.
    const bool lower = megahertz <= SideBands::lowestUpper / 1e6F;
    return {lower, lower ? fmt::format("00{:0<7.7}", digits) : fmt::format("0{:0<8.8}", digits)};
}

}  // namespace

std::string tuneCommandForNetLogger(std::string_view frequency, std::string_view vfo) {
    const auto [lower, digits] = netLoggerTuning(frequency);
    return fmt::format("MD0{};F{}{};{}SS0560000;", lower ? lsb : usb, vfo, digits, scopeMode);
}

long long hertzForNetLogger(std::string_view frequency) { return decimalOrZero(netLoggerTuning(frequency).digits); }

}  // namespace corvane
