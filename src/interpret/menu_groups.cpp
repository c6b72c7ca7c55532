#include "interpret/menu_groups.h"

#include <fmt/core.h>

#include <algorithm>

namespace corvane {

std::string subMenuRequest(int number) {
    const auto subMenu = std::ranges::find(subMenus, number, &SubMenu::number);
    if (subMenu == subMenus.end()) return {};
    std::string request;
    for (int item = 1; item <= subMenu->items; ++item)
        if (isAskedFor(number * 100 + item)) request += fmt::format("EX{:06};", number * 100 + item);
    return request;
}

bool isAskedFor(int item) {
    const auto subMenu = std::ranges::find(subMenus, item / 100, &SubMenu::number);
    const int place = item % 100;
    return subMenu != subMenus.end() && place >= 1 && place <= subMenu->items &&
           (place < subMenu->firstNotAsked || place > subMenu->lastNotAsked);
}

}  // namespace corvane
