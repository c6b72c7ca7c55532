// The transceiver's setup menu: filling its pop-ups, taking reports of its items, reading a group, and setting an item.
#pragma once

#include <string>
#include <string_view>

#include "display/display.h"
#include "interpret/menu_group_read.h"
#include "platform/settings_store.h"
#include "platform/tasks.h"
#include "radio/link.h"

namespace corvane {

struct MenuGroup;

class SetupMenu {
public:
    SetupMenu(Display& display, Link& link, SettingsStore& settings, Scheduler& scheduler);

    // Fills a pop-up of the setup menu with the numbers from first * step to last * step: (0, 100, 1, 2010115, 3, 0,
    // 50) gives "000" to "100".
    void fillMenuPopUp(int first, int last, int step, int tag, int digits, int page, int defaultNumber);
    // Fills all pop-ups that hold numbers. When they are filled again, each keeps its selected entry.
    void fillMenuPopUps();

    void takeMenuItem(std::string_view response);  // "EX0101040250"
    bool takeRefusal();                            // an error response; whether a read of a group was waiting for one
    // The call sign in the transceiver's setup menu; empty before the first report.
    const std::string& vqCall() const { return vqCall_; }

    // Asks for the items of a group. Returns the last command, which the caller sends.
    std::string readGroup(const MenuGroup& group);
    bool reads() const { return read_.running(); }
    // Ends the read that runs, if any. `problem` is shown after its progress: ": stopped, the link is closed."
    void endRead(std::string_view problem);

    void writeMenuItem(PopUpButton& sender);  // sets the item of the sender's tag to the chosen entry

private:
    void takeCallSign(std::string_view value);
    void startRead(const MenuGroup& group);
    void watchRead();
    void showReadProgress(std::string_view problem = {});

    Display& display_;
    Link& link_;
    SettingsStore& settings_;
    Tasks tasks_;
    bool filled_ = false;  // the numeric pop-ups have their entries
    MenuGroupRead read_;
    std::string vqCall_;
};

}  // namespace corvane
