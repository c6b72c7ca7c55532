// The groups of the transceiver's setup menu, and the items that a read of each group asks for.
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "display/menu_items.h"

namespace corvane {

// A read asks for every item but these.
inline constexpr std::array menuItemsNotAskedFor{10517, 20212, 20301, 30108, 30109, 30110, 30205, 30206, 30408};
static_assert(std::ranges::is_sorted(menuItemsNotAskedFor), "found by binary search");
static_assert(std::ranges::all_of(menuItemsNotAskedFor, isMenuItem));

// Whether the read of its group asks for an item: true for 30107, false for 30108 and for a number without an item.
constexpr bool isAskedFor(int item) {
    return isMenuItem(item) && !std::ranges::binary_search(menuItemsNotAskedFor, item);
}

// A group of the setup menu, and what its key sends to read it: `before`, then the requests of its sub-menus in order,
// then `after`. The last of these that is not empty is left to the front panel, which adds break-in on; with
// `lastTwice` it is sent once before that, too.
struct MenuGroup {
    int page;  // of the settings tab
    std::string_view before;
    std::string_view after;
    bool lastTwice;

    constexpr int firstSubMenu() const { return std::ranges::find(menuSubMenus, page, &MenuSubMenu::page)->number; }
    // The last sub-menu with an item that is asked for.
    constexpr int lastSubMenu() const {
        int last = 0;
        for (const MenuItemRow& row : menuItems)
            if (row.page() == page && isAskedFor(row.number)) last = row.subMenu();
        return last;
    }
    constexpr int keyTag() const { return menuTagBase + firstSubMenu() * 100; }  // 2010100 for page 0
};

inline constexpr std::array menuGroups{
    MenuGroup{0, "AI0;", "AI1;", false},
    MenuGroup{1, "", "", true},
    MenuGroup{2, "", "", false},
    MenuGroup{3, "", "", true},
};
static_assert(menuGroups.back().page == menuSubMenus.back().page());

// The read requests of a sub-menu back to back: 106 gives "EX010601;EX010602;EX010603;EX010604;EX010605;". An unknown
// number gives the empty text.
std::string subMenuRequest(int number);

}  // namespace corvane
