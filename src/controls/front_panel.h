// The keys of the front panel. Each press builds a command, and `finish` sends it. The display follows when the
// transceiver reports.
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

    // Ends every press: sends the key's command, followed by break-in on. "BS05;" sends "BS05;BI1;".
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
