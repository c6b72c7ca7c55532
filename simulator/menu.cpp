#include "simulator/menu.h"

#include "simulator/decimal_field.h"

namespace simulator {

namespace {

constexpr std::string_view initialCall = "N0CALL";

std::string padded(std::string_view text, int width) {
    std::string result(text);
    result.resize(static_cast<std::size_t>(width), ' ');
    return result;
}

std::string initialValue(const MenuRow& row) {
    switch (row.form) {
        case MenuForm::text:
            return padded(initialCall, row.width);
        case MenuForm::signedNumber:
            return signedField(row.initial, row.width);
        case MenuForm::number:
            break;
    }
    return decimalField(row.initial, row.width);
}

bool fits(const MenuRow& row, std::string_view value) {
    const auto number =
        row.form == MenuForm::signedNumber ? parseSigned(value, row.width) : parseDecimal(value, row.width);
    return number && *number >= row.lowest && *number <= row.highest && (*number - row.lowest) % row.step == 0;
}

}  // namespace

Menu::Menu() {
    for (const MenuRow& row : menuRows()) values_.emplace(row.number, initialValue(row));
}

std::optional<std::string> Menu::value(std::string_view number) const {
    const auto found = values_.find(number);
    if (found == values_.end()) return std::nullopt;
    return found->second;
}

bool Menu::store(std::string_view number, std::string_view value) {
    const MenuRow* row = menuRow(number);
    if (row == nullptr) return false;
    if (row->form == MenuForm::text) {
        if (value.size() > static_cast<std::size_t>(row->width) || !isPrintable(value)) return false;
        values_.find(number)->second = padded(value, row->width);
        return true;
    }
    if (!fits(*row, value)) return false;
    values_.find(number)->second = value;
    return true;
}

}  // namespace simulator
