#include "interpret/menu_values.h"

#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr std::size_t nameLength = 2;    // "EX"
constexpr std::size_t numberLength = 6;  // "010104"

}  // namespace

std::optional<MenuReport> menuReport(std::string_view response) {
    const std::string_view number = positions(response, nameLength + 1, numberLength);
    if (number.size() != numberLength || number.find_first_not_of("0123456789") != std::string_view::npos) return {};
    const MenuItemRow* row = menuItem(decimalOrZero(number));
    if (!row) return {};
    const std::string_view value = response.substr(nameLength + numberLength);
    if (row->take == MenuTake::text) return MenuReport{row, value};
    const auto width = static_cast<std::size_t>(row->width);
    if (value.size() < width) return {};
    return MenuReport{row, value.substr(0, width)};
}

}  // namespace corvane
