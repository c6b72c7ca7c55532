// The fields in which the operator types a frequency or the call sign.
#pragma once

#include "app/voice.h"
#include "display/display.h"
#include "interpret/mirror.h"
#include "radio/link.h"

namespace corvane {

class EntryFields {
public:
    EntryFields(Display& display, Link& link, Mirror& mirror, Voice& voice);

    void doTune(Button& sender);                       // tunes the active VFO to the typed frequency
    void doCall(Button& sender);                       // writes the typed call sign into the setup menu
    void returnPressedInFreqField(TextField& sender);  // tunes, and gives up the keyboard
    void returnPressedInCallField(TextField& sender);

private:
    Display& display_;
    Link& link_;
    Mirror& mirror_;
    Voice& voice_;
};

}  // namespace corvane
