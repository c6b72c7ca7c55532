// Reading a group of the setup menu, as a value: what is still asked for, and how far it is.
#pragma once

#include <bitset>
#include <string>

#include "display/menu_items.h"

namespace corvane {

struct MenuGroup;

class MenuGroupRead {
public:
    MenuGroupRead() = default;
    MenuGroupRead(const MenuGroup& group, unsigned number);  // begins; every read has a number of its own

    // What has come. Each says whether the read was waiting for it.
    bool takeAnswer(const MenuItemRow& row);
    bool takeRefusal();  // an error answer: the transceiver has no such item

    void stop() { stopped_ = true; }

    bool running() const { return !stopped_ && handled() < asked_; }
    int page() const { return page_; }  // of the group, on the settings page
    unsigned number() const { return number_; }
    int handled() const { return asked_ - static_cast<int>(waiting_.count()) + refused_; }
    int percent() const { return asked_ == 0 ? 0 : 100 * handled() / asked_; }
    // "Reading 57 of 104 items", "104 items read", "93 items read, 11 unknown to this transceiver".
    std::string text() const;

    bool operator==(const MenuGroupRead&) const = default;

private:
    int page_ = 0;
    unsigned number_ = 0;
    int asked_ = 0;  // items of the group
    int refused_ = 0;
    bool stopped_ = true;                    // it ended before its time, or never began
    std::bitset<menuItems.size()> waiting_;  // the items without an answer, by their place in menuItems
};

}  // namespace corvane
