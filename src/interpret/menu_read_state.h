// How far a group of the setup menu has been read.
#pragma once

#include <bitset>
#include <string>

#include "display/menu_items.h"

namespace corvane {

struct MenuGroup;

struct MenuReadState {
    bool filled = false;                    // the numeric pop-ups have their entries
    int page = 0;                           // of the group that was read last
    unsigned number = 0;                    // grows with every read
    int asked = 0;                          // items of the group
    int refused = 0;                        // error answers while it runs: the transceiver has no such item
    bool stopped = true;                    // it ended before its time
    std::bitset<menuItems.size()> waiting;  // the items without an answer, by their place in menuItems

    void start(const MenuGroup& group);
    void stop() { stopped = true; }
    bool running() const { return !stopped && handled() < asked; }
    int handled() const { return asked - static_cast<int>(waiting.count()) + refused; }
    int percent() const { return asked == 0 ? 0 : 100 * handled() / asked; }
    // Notes the answer of an item; false when the read had not waited for it.
    bool takeAnswer(const MenuItemRow& row);
    bool takeRefusal();
    // "Reading 57 of 104 items", "104 items read", "93 items read, 11 unknown to this transceiver".
    std::string text() const;
};

}  // namespace corvane
