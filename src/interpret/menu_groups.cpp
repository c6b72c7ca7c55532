#include "interpret/menu_groups.h"

#include <fmt/core.h>

namespace corvane {

std::string subMenuRequest(int number) {
    std::string request;
    for (const MenuItemRow& row : menuItems)
        if (row.subMenu() == number && isAskedFor(row.number)) request += fmt::format("EX{:06};", row.number);
    return request;
}

}  // namespace corvane
