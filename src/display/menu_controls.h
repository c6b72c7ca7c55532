// The controls of the transceiver's setup menu: a pop-up for every item, and for every page a text and a bar that show
// how far it has been read.
#pragma once

#include <deque>
#include <string>

#include "display/level_indicator.h"
#include "display/menu_items.h"
#include "display/pop_up_button.h"
#include "display/text_field.h"

namespace corvane {

class MenuControls {
public:
    static constexpr int pages = menuSubMenus.back().page() + 1;  // one for each group of the menu
    static constexpr int wholeProgress = 100;

    MenuControls();

    // The pop-up with this tag on this page: popUp(0, 2010104) is the AGC fast delay. None for other tags and pages,
    // and for the call sign, which is a text.
    PopUpButton* popUp(int page, int tag);

    TextField& readField(int page) { return readFields_.at(static_cast<std::size_t>(page)); }
    LevelIndicator& readProgress(int page) { return readProgress_.at(static_cast<std::size_t>(page)); }

    template <class Each>
    void forEachPopUp(Each each) {
        for (std::size_t i = 0; i < menuItems.size(); ++i)
            if (menuItems[i].number != callSignItem) each(menuItems[i], popUps_[i]);
    }

private:
    std::deque<std::string> texts_;     // the texts that the outlets of the pop-ups refer to
    std::deque<PopUpButton> popUps_;    // in the order of menuItems
    std::deque<TextField> readFields_;  // by page
    std::deque<LevelIndicator> readProgress_;
};

// What a screen reader calls an item: "SSB, AGC fast delay in ms".
std::string menuItemLabel(const MenuItemRow& row);
// The number as the transceiver's own menu shows it: "01-01-04".
std::string menuItemPlace(const MenuItemRow& row);
std::string_view menuSubMenuTitle(int subMenu);  // 101 gives "SSB"; empty for other numbers
// Whether the label, sub-menu and number contain all words of a search, in capitals or not: "ssb agc", "01-01-04".
bool menuItemMatches(const MenuItemRow& row, std::string_view search);

}  // namespace corvane
