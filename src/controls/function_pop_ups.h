// The function pop-ups and sliders: each sends the command for its position. The display follows when the transceiver
// reports.
#pragma once

#include <string_view>

#include "app/voice.h"
#include "controls/command_pacer.h"
#include "display/display.h"
#include "interpret/mirror.h"
#include "platform/tasks.h"
#include "radio/link.h"

namespace corvane {

struct SetupPopUp;

class FunctionPopUps {
public:
    FunctionPopUps(Display& display, Link& link, const Mirror& mirror, const Preferences& preferences, Voice& voice,
                   Scheduler& scheduler);

    void goMode(PopUpButton& sender);
    void goMemory(PopUpButton& sender);  // speaks the tag; with Memory IPO also switches the pre-amplifier off
    void goColor(PopUpButton& sender);
    void goSpectrumMode(PopUpButton& sender);
    void goSmeter(PopUpButton& sender);
    void goAmp(PopUpButton& sender);
    void goAGC(PopUpButton& sender);
    void goATT(PopUpButton& sender);
    void goRFIL(PopUpButton& sender);
    void goDNR(PopUpButton& sender);
    void goNB(PopUpButton& sender);
    void goFunctionKnob(PopUpButton& sender);
    void goMPVD(PopUpButton& sender);
    void goAF(Slider& sender);
    void goRF(Slider& sender);
    void send(PopUpButton& sender, const SetupPopUp& row);  // for the scope and power pop-ups

    // A command has been sent: a gain that a slider still holds back must not undo it.
    void noteSent(std::string_view command);

private:
    Link& link_;
    const Mirror& mirror_;
    const Preferences& preferences_;
    Voice& voice_;
    Tasks tasks_;
    CommandPacer afGainPacer_;
    CommandPacer rfGainPacer_;
};

}  // namespace corvane
