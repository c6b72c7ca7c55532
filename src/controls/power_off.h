// Switching the transceiver off after a while. Every choice plans a switch-off of its own, and none is called off: one
// that falls due while nothing is armed does nothing, and one of an earlier choice that falls due after a later one
// switches off.
#pragma once

#include "app/voice.h"
#include "display/display.h"
#include "platform/tasks.h"
#include "radio/link.h"

namespace corvane {

class PowerOff {
public:
    PowerOff(Display& display, Link& link, Voice& voice, Scheduler& scheduler);

    void choose(PopUpButton& sender);  // entry 1 is half an hour, entry 2 an hour, and so on; entry 0 is off
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
