// The operator's switches. Each is one character of text, on exactly when it is "1".
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "display/display.h"

namespace corvane {

struct Preferences {
    std::string vqVoiceGuide;  // spoken announcements
    std::string vqSounds;      // the program's own sounds; named alerts play in any case
    std::string vqMemoryIPO;   // recalling a memory channel switches the pre-amplifier off
    int vqPortChecked = 0;     // 1 once the settings have been restored
};

inline constexpr int offTagOffset = 1000;

// One row per switch: where it is shown, kept and stored.
struct PreferenceSwitch {
    MenuItem Display::*item;
    std::string Preferences::*value;
    std::string_view key;           // in the settings store
    std::string_view defaultValue;  // when nothing is stored
    int onTag;                      // the item's tag while on; offTagOffset more while off
};

inline constexpr std::array preferenceSwitches{
    PreferenceSwitch{&Display::menuItemPreferencesVoice, &Preferences::vqVoiceGuide, "voice", "1", 900},
    PreferenceSwitch{&Display::menuItemPreferencesSounds, &Preferences::vqSounds, "sounds", "1", 901},
    PreferenceSwitch{&Display::menuItemPreferencesIPO, &Preferences::vqMemoryIPO, "ipo", "0", 902},
};

}  // namespace corvane
