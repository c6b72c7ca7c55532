// Auto memories: every 20 seconds the active frequency is recorded if the signal is strong enough.
#pragma once

#include "display/display.h"
#include "interpret/mirror.h"
#include "memories/auto_memory_state.h"
#include "platform/settings_store.h"
#include "platform/tasks.h"
#include "radio/link.h"

namespace corvane {

class AutoMemories {
public:
    AutoMemories(Display& display, Link& link, const Mirror& mirror, Voice& voice, SettingsStore& settings,
                 Scheduler& scheduler);

    const AutoMemoryState& state() const { return state_; }

    void autoMemorySample();                 // samples now, and every 20 s from now on
    void autoMemoryNow(Button& sender);      // records at any signal strength
    void goAutoMemsTune(Button& sender);     // the sender's tag is the row
    void goAutoMemsClear(Button& sender);    // the sender's tag is the row
    void autoNoteEdited(TextField& sender);  // the sender is in the note's cell
    void clear();
    void goAutoMemSquelch(Slider& sender);
    void applyAutoMemSquelch(int index);
    void restoreSquelch();  // from the last run

private:
    bool record();
    void setSquelch(int index);

    Display& display_;
    Link& link_;
    const Mirror& mirror_;
    Voice& voice_;
    SettingsStore& settings_;
    Tasks tasks_;
    AutoMemoryState state_;
};

}  // namespace corvane
