// Switches the transceiver off after a chosen time. Every time chosen starts its own timer; none is cancelled, not even
// by OFF. A timer that runs out while the power-off is not armed does nothing. One that was started by an earlier
// choice switches off, even if a later choice has armed the power-off for another time.
#pragma once

#include "app/voice.h"
#include "display/display.h"
#include "platform/tasks.h"
#include "radio/link.h"

namespace corvane {

class PowerOff {
public:
    PowerOff(Display& display, Link& link, Voice& voice, Scheduler& scheduler);

    void choose(PopUpButton& sender);  // entry 1 is half an hour, entry 2 an hour, and so on; entry 0 disarms
    void autoPowerOff();
    int vqAPO() const { return vqAPO_; }  // 1 while it is armed

private:
    Display& display_;
    Link& link_;
    Voice& voice_;
    Tasks tasks_;
    int vqAPO_ = 0;
};

}  // namespace corvane
