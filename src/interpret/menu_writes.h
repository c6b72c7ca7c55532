// The commands that set items of the transceiver's setup menu.
#pragma once

#include <string>
#include <string_view>

#include "display/menu_items.h"

namespace corvane {

// The command that sets an item to the entry with this index and title: entry 3 of item 010107 gives "EX01010703;", the
// entry "0250" of item 010104 gives "EX0101040250;". Without a selected entry (index below 0) an item set by title gets
// the value of menuFallback, and an item set by index gives no command. An item that the program does not write gives
// no command either.
std::string menuSetCommand(const MenuItemRow& row, int index, std::string_view title);

// The value for an item without a selected entry: zero as the item writes it, or its lowest value: "+00", "000", "01",
// "0020".
std::string menuFallback(const MenuItemRow& row);

}  // namespace corvane
