// Everything that is heard: the voice guide and the program's own sounds while they are switched on, the named alerts
// always.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "app/preferences.h"
#include "platform/alerts.h"
#include "platform/sound_player.h"
#include "platform/speech_synthesizer.h"

namespace corvane {

class Voice {
public:
    Voice(const Preferences& preferences, SpeechSynthesizer& speech, SoundPlayer& sounds, Alerts& alerts)
        : synth(speech), preferences_(preferences), sounds_(sounds), alerts_(alerts) {}

    void speak(std::string_view text) { speak(text, text); }  // while the voice guide is on
    // While it is off, a screen reader says `written` instead; of an empty text it says nothing.
    void speak(std::string_view text, std::string_view written);
    std::function<void(std::string_view written)> onSilence = [](std::string_view) {};
    void playSound(std::string_view name);        // while sounds are on: "Seatbelts"
    void playSystemSound(std::string_view name);  // "Basso"
    // Shows a box over the window, with a sound: what went wrong, then what to do about it.
    void warn(std::string_view message, std::string_view detail);

    SpeechSynthesizer& synth;
    std::string synthVoice;  // empty: the default voice of the user's language

private:
    const Preferences& preferences_;
    SoundPlayer& sounds_;
    Alerts& alerts_;
};

}  // namespace corvane
