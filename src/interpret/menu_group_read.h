// The read of one group of the setup menu, as a value: the items that are still awaited, and the progress.
#pragma once

#include <bitset>
#include <string>

#include "display/menu_items.h"

namespace corvane {

struct MenuGroup;

class MenuGroupRead {
public:
    MenuGroupRead() = default;
    MenuGroupRead(const MenuGroup& group, unsigned number);  // begins a read; each has its own number

    // A response has come. Each operation returns whether the read was waiting for it.
    bool takeAnswer(const MenuItemRow& row, bool shown);  // whether its value is shown
    bool takeRefusal();                                   // an error response: the transceiver has no such item

    void stop() { stopped_ = true; }

    bool running() const { return !stopped_ && handled() < asked_; }
    int page() const { return page_; }  // of the settings tab
    unsigned number() const { return number_; }
    int handled() const { return asked_ - static_cast<int>(waiting_.count()) + refused_; }
    int percent() const { return asked_ == 0 ? 0 : 100 * handled() / asked_; }
    // "Reading 57 of 104 items", "31 items read", "14 items read, 2 unknown to this transceiver", "93 items read, 11
    // not shown". Only an item whose value has come and is shown counts as read.
    std::string text() const;

    bool operator==(const MenuGroupRead&) const = default;

private:
    int page_ = 0;
    unsigned number_ = 0;
    int asked_ = 0;  // items of the group
    int refused_ = 0;
    int notShown_ = 0;                       // answered with a value that no control shows
    bool stopped_ = true;                    // it ended early, or never began
    std::bitset<menuItems.size()> waiting_;  // the items without a response, by their index in menuItems
};

}  // namespace corvane
