#include "feeds/tune_command.h"

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
    std::string command;
    if (row != modeRows.end()) command = upper ? row->above : row->below;
    command.append("F").append(vfo).append(upper ? "0" : "00").append(std::to_string(hertz)).append(";");
    return command.append(scopeMode);
}

std::string tuneCommandForStation(long long hertz, std::string_view vfo) {
    const std::string_view fill = hertz < 1'000'000 ? "000" : "00";
    return std::string("MD05;F").append(vfo).append(fill).append(std::to_string(hertz)).append(";").append(scopeMode);
}

std::string tuneCommandForNetLogger(std::string_view frequency, std::string_view vfo) {
    constexpr float aboveIsKilohertz = 70.0F;
    float megahertz = decimalNumber<float>(frequency).value_or(0);
    if (megahertz > aboveIsKilohertz) megahertz /= 1000.0F;
    std::string digits = without(shortestDecimal(megahertz), ".");
    const bool lower = megahertz <= lowestUpperMegahertz;  // 10 MHz itself, too
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
