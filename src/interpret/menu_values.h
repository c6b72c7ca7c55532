// What the transceiver says of an item of its setup menu.
#pragma once

#include <optional>
#include <string_view>

#include "display/menu_items.h"

namespace corvane {

struct MenuReport {
    const MenuItemRow* row;
    std::string_view value;  // as many characters as the item has; of the call sign all there are
};

// "EX0101040250" reports "0250" for item 010104; what follows the item's width is ignored. Nothing for a number that no
// item has and for a value that is too short. An item that is not read is reported with an empty value.
std::optional<MenuReport> menuReport(std::string_view response);

}  // namespace corvane
