// The pop-up of operating presets, whose titles name them.
#pragma once

#include "app/voice.h"
#include "display/display.h"
#include "interpret/mirror.h"
#include "radio/link.h"

namespace corvane {

class PresetPopUp {
public:
    PresetPopUp(Display& display, Link& link, const Mirror& mirror, Voice& voice);

    void goMacro(PopUpButton& sender);

private:
    Link& link_;
    const Mirror& mirror_;
    Voice& voice_;
};

}  // namespace corvane
