// The commands that set items of the transceiver's setup menu.
#pragma once

#include <string>
#include <string_view>

#include "display/menu_items.h"

namespace corvane {

// What sets an item to the entry with this index and title: entry 3 of item 010107 gives "EX01010703;", the entry
// "0250" of item 010104 "EX0101040250;". An item set by title has its title, or without an entry (index below 0) the
// value that menuFallback says; an item set by index needs an entry. An item that is not written gives no command.
std::string menuSetCommand(const MenuItemRow& row, int index, std::string_view title);

// The value of no entry: zero as the item writes it, or its lowest value: "+00", "000", "01", "0020".
std::string menuFallback(const MenuItemRow& row);

}  // namespace corvane
