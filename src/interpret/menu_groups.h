// The transceiver's setup menu by groups: which items a read of a group asks for.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace corvane {

struct SubMenu {
    int number;  // group and sub-menu, e.g. 0106 as 106
    int items;   // items 01 to this one
    int firstNotAsked = 0;
    int lastNotAsked = 0;
};

inline constexpr std::array subMenus{
    SubMenu{101, 19}, SubMenu{102, 17}, SubMenu{103, 21}, SubMenu{104, 20},        SubMenu{105, 16}, SubMenu{106, 5},
    SubMenu{107, 6},  SubMenu{201, 20}, SubMenu{202, 11}, SubMenu{301, 26, 8, 10}, SubMenu{302, 4},  SubMenu{303, 19},
    SubMenu{304, 7},  SubMenu{305, 7},  SubMenu{401, 6},  SubMenu{402, 4},         SubMenu{403, 4},  SubMenu{404, 2},
};

// What the key that reads a group sends: `before`, then the requests of its sub-menus in order, then `after`. The last
// of these goes out with the tail that every key has, and where `lastTwice` says so also once before.
struct MenuGroup {
    int keyTag;
    std::string_view before;
    int firstSubMenu;
    int lastSubMenu;
    std::string_view after;
    bool lastTwice;
};

inline constexpr std::array menuGroups{
    MenuGroup{2010100, "AI0;", 101, 107, "AI1;", false},
    MenuGroup{2020100, "", 201, 202, "", true},
    MenuGroup{2030100, "", 301, 305, "", false},
    MenuGroup{2040100, "", 401, 404, "", true},
};

// The read requests of a sub-menu back to back: 106 gives "EX010601;EX010602;EX010603;EX010604;EX010605;". A number
// that is not in the table gives none.
std::string subMenuRequest(int number);

// Whether the read of its group asks for an item: 30107 is asked for, 30108 is not.
bool isAskedFor(int item);

}  // namespace corvane
