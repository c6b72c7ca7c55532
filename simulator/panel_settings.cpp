#include "simulator/panel_settings.h"

#include <algorithm>

#include "simulator/decimal_field.h"

namespace simulator {

namespace {

constexpr PanelRow numberRow(std::string_view command, int width, int lowest, int highest, std::string_view initial) {
    return {command, PanelRow::Form::number, width, lowest, highest, "", "", initial};
}

constexpr PanelRow codeRow(std::string_view command, std::string_view codes, std::string_view suffix,
                           std::string_view initial) {
    return {command, PanelRow::Form::code, 1, 0, 0, codes, suffix, initial};
}

constexpr std::array rows{
    numberRow("AG0", 3, 0, 255, "080"),
    numberRow("RG0", 3, 0, 255, "255"),
    numberRow("RA0", 1, 0, 3, "0"),
    numberRow("PA0", 1, 0, 2, "1"),
    numberRow("PC", 3, 5, 100, "050"),
    numberRow("NB0", 1, 0, 1, "0"),
    numberRow("NR0", 1, 0, 1, "0"),
    numberRow("BC0", 1, 0, 1, "0"),
    numberRow("NL0", 3, 0, 10, "005"),
    numberRow("RL0", 2, 1, 15, "08"),
    numberRow("BP00", 3, 0, 1, "000"),
    numberRow("CO00", 4, 0, 1, "0000"),
    numberRow("BI", 1, 0, 1, "1"),
    numberRow("ST", 1, 0, 1, "0"),
    codeRow("MS", "012345", "0", "5"),
    codeRow("SF0", "13489", "", "8"),
    codeRow("SF1", "014569CDEFGHIJKMN", "", "E"),
    codeRow("SS00", "012345", "0000", "2"),
    codeRow("SS01", "01234", "0000", "1"),
    codeRow("SS02", "01", "0000", "0"),
    codeRow("SS03", "0123456789A", "0000", "1"),
    PanelRow{"SS04", PanelRow::Form::decibels, 5, -300, 300, "", "", "+00.0"},
    codeRow("SS05", "0123456789", "0000", "7"),
    codeRow("SS06", "0123456789AB", "0000", "4"),
    codeRow("SS07", "0123456789", "0000", "0"),
    codeRow("SS08", "01", "0000", "0"),
};

bool isDecibels(const PanelRow& row, std::string_view value) {
    if (value.size() != 5 || value[3] != '.') return false;
    const auto tenths = parseSigned(std::string(value.substr(0, 3)) + value[4], 4);
    return tenths && *tenths >= row.lowest && *tenths <= row.highest && *tenths % 5 == 0;
}

bool isNumber(const PanelRow& row, std::string_view value) {
    const auto number = parseDecimal(value, row.width);
    return number && *number >= row.lowest && *number <= row.highest;
}

bool isCode(const PanelRow& row, std::string_view value) {
    if (value.empty() || row.codes.find(value[0]) == std::string_view::npos) return false;
    const auto rest = value.substr(1);
    const bool zeros = std::ranges::all_of(rest, [](char character) { return character == '0'; });
    return zeros && rest.size() <= (row.suffix.empty() ? 0 : row.suffix.size() + 1);
}

bool allows(const PanelRow& row, std::string_view value) {
    switch (row.form) {
        case PanelRow::Form::number:
            return isNumber(row, value);
        case PanelRow::Form::code:
            return isCode(row, value);
        case PanelRow::Form::decibels:
            break;
    }
    return isDecibels(row, value);
}

}  // namespace

std::span<const PanelRow> panelRows() { return rows; }

PanelSettings::PanelSettings() {
    static_assert(std::tuple_size_v<decltype(values_)> == rows.size());
    std::ranges::transform(rows, values_.begin(), [](const PanelRow& row) { return std::string(row.initial); });
}

std::optional<std::size_t> PanelSettings::rowOf(std::string_view command) {
    const auto found =
        std::ranges::find_if(rows, [&](const PanelRow& row) { return command.starts_with(row.command); });
    if (found == rows.end()) return std::nullopt;
    return static_cast<std::size_t>(found - rows.begin());
}

std::string PanelSettings::reading(std::size_t row) const {
    return std::string(rows[row].command) + values_[row] + std::string(rows[row].suffix);
}

bool PanelSettings::store(std::size_t row, std::string_view value) {
    if (!allows(rows[row], value)) return false;
    values_[row] = value.substr(0, static_cast<std::size_t>(rows[row].width));
    return true;
}

}  // namespace simulator
