// The transceiver's report of one item of its setup menu.
#pragma once

#include <optional>
#include <string_view>

#include "display/menu_items.h"

namespace corvane {

struct MenuReport {
    const MenuItemRow* row;
    std::string_view value;  // as many characters as the item has; the call sign may have any number
};

// "EX0101040250" reports "0250" for item 010104; characters beyond the item's width are ignored. Gives nothing for an
// unknown item number and for a value that is too short. The value of an item with
// MenuTake::none is empty.
std::optional<MenuReport> menuReport(std::string_view response);

}  // namespace corvane
