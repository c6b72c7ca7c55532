// The operator's switches, kept between runs.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "display/display.h"
#include "platform/settings_store.h"

namespace corvane {

// Each switch is one character of text, on exactly when it is "1".
struct Switches {
    std::string vqVoiceGuide;   // spoken announcements
    std::string vqSounds;       // the program's own sounds; named alerts play in any case
    std::string vqMemoryIPO;    // recalling a memory channel switches the pre-amplifier off
    std::string bandMapStrip;   // the active band of the band map is on the radio page
    std::string reopenPort;     // a port that was lost while open is opened again
    std::string share;          // other programs may use the transceiver
    std::string shareTransmit;  // and transmit
    std::string shareStore;     // and change memories and menus
    std::string virtualPort;    // by a serial port, too
};

// One row per switch: where it is shown, kept and stored.
struct PreferenceSwitch {
    MenuItem Display::*item;
    std::string Switches::*value;
    std::string_view key;           // in the settings store
    std::string_view defaultValue;  // when nothing is stored
    int onTag;                      // the item's tag while on; offTagOffset more while off
};

inline constexpr int offTagOffset = 1000;
inline constexpr std::array preferenceSwitches{
    PreferenceSwitch{&Display::menuItemPreferencesVoice, &Switches::vqVoiceGuide, "voice", "1", 900},
    PreferenceSwitch{&Display::menuItemPreferencesSounds, &Switches::vqSounds, "sounds", "1", 901},
    PreferenceSwitch{&Display::menuItemPreferencesIPO, &Switches::vqMemoryIPO, "ipo", "0", 902},
    PreferenceSwitch{&Display::menuItemPreferencesBandMap, &Switches::bandMapStrip, "bandmap", "0", 903},
    PreferenceSwitch{&Display::menuItemPreferencesReopen, &Switches::reopenPort, "reopen", "0", 907},
    PreferenceSwitch{&Display::shareSwitch, &Switches::share, "share", "0", 910},
    PreferenceSwitch{&Display::shareTransmitSwitch, &Switches::shareTransmit, "shareTransmit", "0", 911},
    PreferenceSwitch{&Display::shareStoreSwitch, &Switches::shareStore, "shareStore", "0", 912},
    PreferenceSwitch{&Display::virtualPortSwitch, &Switches::virtualPort, "virtualPort", "0", 913},
};

class Preferences {
public:
    Preferences(Display& display, SettingsStore& settings) : display_(display), settings_(settings) {}

    void restore();                     // loads the stored switches and shows them
    void goMainMenu(MenuItem& sender);  // flips the switch of the sender's tag, and stores it

    const Switches& switches() const { return switches_; }
    bool voiceGuide() const { return switches_.vqVoiceGuide == "1"; }
    bool sounds() const { return switches_.vqSounds == "1"; }
    bool memoryIpo() const { return switches_.vqMemoryIPO == "1"; }
    bool reopenPort() const { return switches_.reopenPort == "1"; }
    bool share() const { return switches_.share == "1"; }
    bool shareTransmit() const { return switches_.shareTransmit == "1"; }
    bool shareStore() const { return switches_.shareStore == "1"; }
    bool virtualPort() const { return switches_.virtualPort == "1"; }

private:
    void show(const PreferenceSwitch& row);

    Display& display_;
    SettingsStore& settings_;
    Switches switches_;
};

}  // namespace corvane
