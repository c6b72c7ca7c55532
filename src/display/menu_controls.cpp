#include "display/menu_controls.h"

#include <fmt/core.h>

#include <array>

#include "wire/letter_case.h"

namespace corvane {

namespace {

constexpr std::array<Outlet, MenuControls::pages> readFieldOutlets{{
    {"radioMenuReadField", 0, "", "Radio menu", "How far the radio menu has been read."},
    {"cwMenuReadField", 0, "", "CW menu", "How far the CW menu has been read."},
    {"operationMenuReadField", 0, "", "Operation menu", "How far the operation menu has been read."},
    {"displayMenuReadField", 0, "", "Display menu", "How far the display menu has been read."},
}};
constexpr std::array<Outlet, MenuControls::pages> readProgressOutlets{{
    {"radioMenuReadProgress", 0, "", "Reading the radio menu", "How much of the radio menu has been read."},
    {"cwMenuReadProgress", 0, "", "Reading the CW menu", "How much of the CW menu has been read."},
    {"operationMenuReadProgress", 0, "", "Reading the operation menu", "How much of the operation menu has been read."},
    {"displayMenuReadProgress", 0, "", "Reading the display menu", "How much of the display menu has been read."},
}};

}  // namespace

MenuControls::MenuControls() {
    for (const MenuItemRow& row : menuItems) {
        const std::string& label = texts_.emplace_back(menuItemLabel(row));
        const std::string& help = texts_.emplace_back(fmt::format(
            "{}. Menu {}.{}", label, menuItemPlace(row), row.write == MenuWrite::none ? " Only shown here." : ""));
        popUps_.emplace_back(Outlet{"", row.tag(), row.label, label, help}).setEntries(entryTitles(row.entries));
    }
    for (const Outlet& outlet : readFieldOutlets) readFields_.emplace_back(outlet);
    for (const Outlet& outlet : readProgressOutlets)
        readProgress_.emplace_back(outlet, wholeProgress).setVisible(false);
}

PopUpButton* MenuControls::popUp(int page, int tag) {
    const MenuItemRow* row = menuItem(tag - menuTagBase);
    if (!row || row->page() != page || row->number == callSignItem) return nullptr;
    return &popUps_[static_cast<std::size_t>(row - menuItems.data())];
}

std::string menuItemLabel(const MenuItemRow& row) {
    return fmt::format("{}, {}{}{}", menuSubMenuTitle(row.subMenu()), row.label, row.unit.empty() ? "" : " in ",
                       row.unit);
}

std::string menuItemPlace(const MenuItemRow& row) {
    return fmt::format("{:02}-{:02}-{:02}", row.number / 10000, row.number / 100 % 100, row.number % 100);
}

std::string_view menuSubMenuTitle(int subMenu) {
    const auto found = std::ranges::find(menuSubMenus, subMenu, &MenuSubMenu::number);
    return found == menuSubMenus.end() ? std::string_view{} : found->title;
}

bool menuItemMatches(const MenuItemRow& row, std::string_view search) {
    const std::string text = upperCase(fmt::format("{} {}", menuItemLabel(row), menuItemPlace(row)));
    std::string words = upperCase(search) + ' ';
    for (std::size_t end = words.find(' '); end != std::string::npos; end = words.find(' ')) {
        if (text.find(words.substr(0, end)) == std::string::npos) return false;
        words.erase(0, end + 1);
    }
    return true;
}

}  // namespace corvane
