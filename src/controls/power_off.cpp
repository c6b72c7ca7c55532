#include "controls/power_off.h"

namespace corvane {

using namespace std::chrono_literals;

PowerOff::PowerOff(Display& display, Link& link, Voice& voice, Scheduler& scheduler)
    : display_(display), link_(link), voice_(voice), tasks_(scheduler) {}

void PowerOff::choose(PopUpButton& sender) {
    const int entry = sender.indexOfSelectedItem();
    link_.build({});
    vqAPO_ = entry < 1 ? 0 : 1;
    if (entry >= 1) tasks_.after(entry * 1800s, [this] { autoPowerOff(); });
}

void PowerOff::autoPowerOff() {
    if (vqAPO_ != 1) return;
    display_.APOPopUpButton.selectItem(0);
    vqAPO_ = 0;
    display_.sMeter.setIntegerValue(0);
    link_.writeString("PS0;");
    voice_.playSound("Seatbelts");
}

}  // namespace corvane
