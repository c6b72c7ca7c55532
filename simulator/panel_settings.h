#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace simulator {

// A setting of the front panel that is just a value: its command, the form of its value, and the values allowed.
//
// number: `width` digits from `lowest` to `highest`, "AG0128;". code: one character of `codes`, "SF0D;". decibels:
// "+10.5", from -30.0 to +30.0 by half a decibel, "SS04+10.5;". `suffix` follows the value in answers, "SS0570000;";
// a set command may leave it out or add one zero.
struct PanelRow {
    enum class Form { number, code, decibels };

    std::string_view command;
    Form form;
    int width;
    int lowest;
    int highest;
    std::string_view codes;
    std::string_view suffix;
    std::string_view initial;
};

// All rows. No command is a prefix of another.
std::span<const PanelRow> panelRows();

// The values of these settings as sent on the line.
class PanelSettings {
public:
    PanelSettings();

    // The index of the row that a command such as "AG0128" or "AG0" belongs to.
    static std::optional<std::size_t> rowOf(std::string_view command);

    // "AG0128" for the row of AG0: the answer without its ";".
    std::string reading(std::size_t row) const;

    // Stores the value that follows the command's name; refused unless the row allows it.
    bool store(std::size_t row, std::string_view value);

private:
    std::array<std::string, 26> values_;
};

}  // namespace simulator
