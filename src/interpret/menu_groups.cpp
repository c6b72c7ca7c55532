#include "interpret/menu_groups.h"

#include <algorithm>

#include "radio/cat_command.h"

namespace corvane {

std::string subMenuRequest(int number) {
    const auto subMenu = std::ranges::find(subMenus, number, &SubMenu::number);
    if (subMenu == subMenus.end()) return {};
    std::string request;
    for (int item = 1; item <= subMenu->items; ++item)
        if (item < subMenu->firstNotAsked || item > subMenu->lastNotAsked)
            request += "EX" + zeroPadded(number * 100 + item, 6) + ';';
    return request;
}

}  // namespace corvane
