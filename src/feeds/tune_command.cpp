#include "feeds/tune_command.h"

#include <fmt/core.h>

#include <algorithm>
#include <array>

#include "wire/decimal_number.h"
#include "wire/tuning_range.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr std::string_view scopeMode = "SS0640000;";

struct ModeRow {
    ModeWords words;
    std::string_view mode;
    std::string_view below;  // 10 MHz
    std::string_view above;
};

constexpr std::array modeRows{
    ModeRow{ModeWords::spots, "SSB", "MD01;SF1E;", "MD02;SF1E;"},
    ModeRow{ModeWords::spots, "CW", "MD07;SF1H;", "MD03;SF1H;"},
    ModeRow{ModeWords::spots, "FT8", "MD02;SF1E;", "MD02;SF1E;"},
    ModeRow{ModeWords::spots, "FT4", "MD02;SF1E;", "MD02;SF1E;"},
    ModeRow{ModeWords::nets, "LSB", "MD01;", "MD01;"},
    ModeRow{ModeWords::nets, "USB", "MD02;", "MD02;"},
    ModeRow{ModeWords::nets, "CW", "MD07;SF1H;", "MD03;SF1H;"},
    ModeRow{ModeWords::nets, "FT8", "MD02;SF1E;", "MD02;SF1E;"},
    ModeRow{ModeWords::nets, "FT4", "MD02;SF1E;", "MD02;SF1E;"},
};

}  // namespace

std::string tuneCommandForSpot(long long hertz, std::string_view mode, ModeWords words, std::string_view vfo) {
    const bool upper = isUpperUsual(static_cast<double>(hertz) / 1e6);
    const auto row =
        std::ranges::find_if(modeRows, [&](const ModeRow& each) { return each.words == words && each.mode == mode; });
    const std::string_view modeCommand = row == modeRows.end() ? "" : upper ? row->above : row->below;
    return fmt::format("{}F{}{}{};{}", modeCommand, vfo, upper ? "0" : "00", hertz, scopeMode);
}

std::string tuneCommandForStation(long long hertz, std::string_view vfo) {
    const std::string_view fill = hertz < 1'000'000 ? "000" : "00";
    return fmt::format("MD05;F{}{}{};{}", vfo, fill, hertz, scopeMode);
}

std::string tuneCommandForNetLogger(std::string_view frequency, std::string_view vfo) {
    constexpr float aboveIsKilohertz = 70.0F;
    float megahertz = decimalNumber<float>(frequency).value_or(0);
    if (megahertz > aboveIsKilohertz) megahertz /= 1000.0F;
    const std::string digits = without(shortestDecimal(megahertz), ".");
    // Filled up or cut on the right; unlike elsewhere 10 MHz itself has the lower side band.
    const bool lower = megahertz <= lowestUpperMegahertz;
    return lower ? fmt::format("MD01;F{}00{:0<7.7};{}SS0560000;", vfo, digits, scopeMode)
                 : fmt::format("MD02;F{}0{:0<8.8};{}SS0560000;", vfo, digits, scopeMode);
}

}  // namespace corvane
