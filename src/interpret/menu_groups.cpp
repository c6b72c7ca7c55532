#include "interpret/menu_groups.h"

#include "wire/cat_command.h"

namespace corvane {

std::string subMenuRequest(int number) {
    std::string request;
    for (const MenuItemRow& row : menuItems)
        if (row.subMenu() == number && isAskedFor(row.number)) request += "EX" + zeroPadded(row.number, 6) + ';';
    return request;
}

}  // namespace corvane
