// The keys of the front panel. A key shows its press at once, by its color, its tag or its title; values follow when
// the transceiver reports them.
#pragma once

#include <string>
#include <string_view>

#include "app/voice.h"
#include "display/display.h"
#include "interpret/mirror.h"
#include "platform/tasks.h"
#include "radio/link.h"

namespace corvane {

class FrontPanel {
public:
    FrontPanel(Display& display, Link& link, Mirror& mirror, Voice& voice, Scheduler& scheduler);

    // A press of a key, one operation for each kind of key. A key with two tags changes from one tag to the other.
    void press(Button& sender, const BandKey& key);
    void press(Button& sender, const MediumWaveKey& key);
    void press(Button& sender, const ModeKey& key);
    void press(Button& sender, const ToggleKey& key, int firstTag);
    void press(Button& sender, const MuteKey& key, int firstTag);
    void press(Button& sender, const CommandKey& key);
    void press(Button& sender, const FirstScopeColorKey& key, int firstTag);
    void press(Button& sender, const StepKey& key);
    void press(Button& sender, const SwapKey& key);
    void press(Button& sender, const PowerOnKey& key);
    void press(Button& sender, const PowerOffKey& key);
    void press(Button& sender, const VfoKey& key);
    void press(Button& sender, const MemoryKey& key);
    void press(Button& sender, const MemoryBKey& key);
    void pressWithoutAction(Button& sender);  // for a tag that no key has

    // Tunes the active VFO "up" or "down" by `step` hertz.
    void stepFrequency(std::string_view direction, int step);

    // Sends the last command of a key with break-in on behind it: "BS05;" gives "BS05;BI1;", nothing gives "BI1;".
    // Break-in off, "BI0;", goes alone. Keys of other rooms that send end here, too.
    void finish(std::string command);

private:
    void lightBandKey(Button& sender);

    Display& display_;
    Link& link_;
    Mirror& mirror_;
    Voice& voice_;
    Tasks tasks_;
};

}  // namespace corvane
