// The keys that share the front-panel action: their texts, and where the window shows them. One row per key.
// controls/front_panel_actions.h says what a key sends.
#pragma once

#include <algorithm>
#include <array>

#include "display/control.h"

namespace corvane {

// Where the window shows a key.
enum class KeyPanel {
    header,
    bands,
    modes,
    functions,
    vfo,
    steps,
    power,
    scope,
    scopeColors,
    textMemories,
    keyer,
    lists,
    autoMemories,
    menuGroups,
    none
};

struct FrontPanelKey {
    Outlet outlet;
    KeyPanel panel;
};

// clang-format off
inline constexpr std::array frontPanelKeys{
    FrontPanelKey{{"m6Button", 6, "6", "6 meters", "Go to the 6 m band (50 MHz), where you left it.", "Ctrl+-"}, KeyPanel::bands},
    FrontPanelKey{{"m10Button", 10, "10", "10 meters", "Go to the 10 m band (28 MHz), where you left it.", "Ctrl+0"}, KeyPanel::bands},
    FrontPanelKey{{"m12Button", 12, "12", "12 meters", "Go to the 12 m band (24.9 MHz), where you left it.", "Ctrl+9"}, KeyPanel::bands},
    FrontPanelKey{{"m15Button", 15, "15", "15 meters", "Go to the 15 m band (21 MHz), where you left it.", "Ctrl+8"}, KeyPanel::bands},
    FrontPanelKey{{"m17Button", 17, "17", "17 meters", "Go to the 17 m band (18 MHz), where you left it.", "Ctrl+7"}, KeyPanel::bands},
    FrontPanelKey{{"m20Button", 20, "20", "20 meters", "Go to the 20 m band (14 MHz), where you left it.", "Ctrl+6"}, KeyPanel::bands},
    FrontPanelKey{{"m30Button", 30, "30", "30 meters", "Go to the 30 m band (10 MHz), where you left it.", "Ctrl+5"}, KeyPanel::bands},
    FrontPanelKey{{"m40Button", 40, "40", "40 meters", "Go to the 40 m band (7 MHz), where you left it.", "Ctrl+4"}, KeyPanel::bands},
    FrontPanelKey{{"m60Button", 60, "60", "60 meters", "Go to the 60 m band (5 MHz), where you left it.", "Ctrl+3"}, KeyPanel::bands},
    FrontPanelKey{{"m80Button", 80, "80", "80 meters", "Go to the 80 m band (3.5 MHz), where you left it.", "Ctrl+2"}, KeyPanel::bands},
    FrontPanelKey{{"m160Button", 160, "160", "160 meters", "Go to the 160 m band (1.8 MHz), where you left it.", "Ctrl+1"}, KeyPanel::bands},
    FrontPanelKey{{"mgenButton", 161, "GEN", "General coverage", "Go to general coverage, where you left it.", "Ctrl+G"}, KeyPanel::bands},
    FrontPanelKey{{"mmwButton", 162, "MW", "Medium wave", "Go to medium wave: AM on 1100 kHz.", "Ctrl+Shift+G"}, KeyPanel::bands},

    FrontPanelKey{{"", 200, "LSB", "Mode LSB", "Lower side band."}, KeyPanel::modes},
    FrontPanelKey{{"", 201, "USB", "Mode USB", "Upper side band."}, KeyPanel::modes},
    FrontPanelKey{{"", 202, "AM", "Mode AM", "Amplitude modulation."}, KeyPanel::modes},
    FrontPanelKey{{"", 203, "CW-L", "Mode CW-L", "CW, lower side."}, KeyPanel::modes},
    FrontPanelKey{{"", 204, "CW-U", "Mode CW-U", "CW, upper side."}, KeyPanel::modes},
    FrontPanelKey{{"", 205, "FM", "Mode FM", "Frequency modulation."}, KeyPanel::modes},
    FrontPanelKey{{"", 206, "RTTY-L", "Mode RTTY-L", "Radio teletype, lower side."}, KeyPanel::modes},
    FrontPanelKey{{"", 207, "RTTY-U", "Mode RTTY-U", "Radio teletype, upper side."}, KeyPanel::modes},
    FrontPanelKey{{"", 208, "DATA-L", "Mode DATA-L", "Data, lower side band."}, KeyPanel::modes},
    FrontPanelKey{{"", 209, "DATA-U", "Mode DATA-U", "Data, upper side band."}, KeyPanel::modes},
    FrontPanelKey{{"", 210, "FM-N", "Mode FM-N", "Frequency modulation, narrow."}, KeyPanel::modes},
    FrontPanelKey{{"", 211, "AM-N", "Mode AM-N", "Amplitude modulation, narrow."}, KeyPanel::modes},
    FrontPanelKey{{"", 212, "D-FM", "Mode DATA-FM", "Data on frequency modulation."}, KeyPanel::modes},
    FrontPanelKey{{"", 213, "PSK", "Mode PSK", "Phase shift keying."}, KeyPanel::modes},
    FrontPanelKey{{"", 214, "D-FM-N", "Mode DATA-FM-N", "Data on frequency modulation, narrow."}, KeyPanel::modes},
    FrontPanelKey{{"", 215, "0", "Mode code 0", "Sends mode code 0, which no mode has."}, KeyPanel::none},

    FrontPanelKey{{"", 225, "BK-IN", "Break-in, keyer", "Break-in on or off. This key keeps its own state; the one on the radio page follows the transceiver."}, KeyPanel::keyer},
    FrontPanelKey{{"", 226, "NR", "Noise reduction", "Digital noise reduction on or off.", "Ctrl+Shift+R"}, KeyPanel::functions},
    FrontPanelKey{{"", 227, "NB", "Noise blanker", "Noise blanker on or off.", "Ctrl+Shift+B"}, KeyPanel::functions},
    FrontPanelKey{{"dnfButton", 228, "DNF", "Digital notch filter", "Automatic digital notch filter on or off.", "Ctrl+Shift+D"}, KeyPanel::functions},
    FrontPanelKey{{"bkinButton", 229, "BK-IN", "Break-in", "Break-in on or off: keying switches to transmit by itself.", "Ctrl+Shift+K"}, KeyPanel::functions},
    FrontPanelKey{{"notchButton", 233, "NOTCH", "Manual notch", "Manual notch filter on or off.", "Ctrl+Shift+N"}, KeyPanel::functions},
    FrontPanelKey{{"contButton", 234, "CONT", "Contour", "Contour filter on or off.", "Ctrl+Shift+C"}, KeyPanel::functions},

    FrontPanelKey{{"", 275, "A/B \u2192 A", "Swap VFOs, show A", "Swap the VFOs and read side A again.", "Ctrl+Shift+A"}, KeyPanel::vfo},
    FrontPanelKey{{"", 276, "A/B \u2192 B", "Swap VFOs, show B", "Swap the VFOs and read side B again."}, KeyPanel::vfo},
    FrontPanelKey{{"", 277, "V/M", "VFO or memory", "Switch between VFO and memory."}, KeyPanel::vfo},

    FrontPanelKey{{"", 300, "POWER ON", "Power on", "Switch the transceiver on; it takes about two seconds."}, KeyPanel::power},
    FrontPanelKey{{"", 301, "POWER OFF", "Power off", "Switch the transceiver off."}, KeyPanel::power},

    FrontPanelKey{{"", 351, "1", "Scope color 1", "Scope display in color 1."}, KeyPanel::scopeColors},
    FrontPanelKey{{"", 352, "2", "Scope color 2", "Scope display in color 2."}, KeyPanel::scopeColors},
    FrontPanelKey{{"", 353, "3", "Scope color 3", "Scope display in color 3."}, KeyPanel::scopeColors},
    FrontPanelKey{{"", 354, "4", "Scope color 4", "Scope display in color 4."}, KeyPanel::scopeColors},
    FrontPanelKey{{"", 355, "5", "Scope color 5", "Scope display in color 5."}, KeyPanel::scopeColors},
    FrontPanelKey{{"", 356, "6", "Scope color 6", "Scope display in color 6."}, KeyPanel::scopeColors},
    FrontPanelKey{{"", 357, "7", "Scope color 7", "Scope display in color 7."}, KeyPanel::scopeColors},
    FrontPanelKey{{"", 358, "8", "Scope color 8", "Scope display in color 8."}, KeyPanel::scopeColors},
    FrontPanelKey{{"", 359, "9", "Scope color 9", "Scope display in color 9."}, KeyPanel::scopeColors},
    FrontPanelKey{{"", 360, "10", "Scope color 10", "Scope display in color 10."}, KeyPanel::scopeColors},
    FrontPanelKey{{"", 361, "11", "Scope color 11", "Scope display in color 11."}, KeyPanel::scopeColors},

    FrontPanelKey{{"", 379, "ZIN", "CW zero in", "Tune to zero beat with the CW signal that is heard.", "Ctrl+Shift+E"}, KeyPanel::vfo},
    FrontPanelKey{{"", 380, "15 W", "Tune power", "Transmit power 15 W, for tuning.", "Ctrl+Shift+T"}, KeyPanel::power},
    FrontPanelKey{{"", 381, "100 W", "Full power", "Transmit power 100 W.", "Ctrl+Shift+F"}, KeyPanel::power},
    FrontPanelKey{{"", 382, "ATU TUNE", "Antenna tuner: tune", "Start the antenna tuner at 15 W. The transceiver transmits."}, KeyPanel::power},
    FrontPanelKey{{"", 383, "Hold", "Scope hold", "Hold the scope picture.", "Ctrl+H"}, KeyPanel::scope},
    FrontPanelKey{{"", 384, "Marker", "Scope marker", "Scope marker on or off."}, KeyPanel::scope},

    FrontPanelKey{{"", 450, "+250", "Up 250 hertz", "Active VFO up 250 Hz.", "Ctrl+Up"}, KeyPanel::steps},
    FrontPanelKey{{"", 451, "\u2212250", "Down 250 hertz", "Active VFO down 250 Hz.", "Ctrl+Down"}, KeyPanel::steps},
    FrontPanelKey{{"", 452, "+1k", "Up 1 kilohertz", "Active VFO up 1 kHz.", "Ctrl+Shift+Up"}, KeyPanel::steps},
    FrontPanelKey{{"", 453, "\u22121k", "Down 1 kilohertz", "Active VFO down 1 kHz.", "Ctrl+Shift+Down"}, KeyPanel::steps},
    FrontPanelKey{{"", 460, "Q-M IN", "Quick memory: store", "Store the frequency in the quick memory bank.", "Ctrl+Shift+Q"}, KeyPanel::vfo},
    FrontPanelKey{{"", 461, "Q-M OUT", "Quick memory: recall", "Recall the quick memory bank.", "Ctrl+Shift+W"}, KeyPanel::vfo},

    FrontPanelKey{{"vqFreqAButton", 500, "", "VFO A", "Select VFO A.", "F2"}, KeyPanel::header},
    FrontPanelKey{{"vqFreqBButton", 501, "", "VFO B", "Select VFO B.", "F3"}, KeyPanel::header},
    FrontPanelKey{{"vqMemAButton", 502, "", "Memory", "Go to the memory channel.", "F4"}, KeyPanel::header},
    FrontPanelKey{{"", 503, "MEM B", "Memory on side B", "Put side B on its memory channel."}, KeyPanel::vfo},

    FrontPanelKey{{"textMemory1Button", 601, "", "Text memory 1", "Transmit text memory 1 of the present mode.", "F5"}, KeyPanel::textMemories},
    FrontPanelKey{{"textMemory2Button", 602, "", "Text memory 2", "Transmit text memory 2 of the present mode.", "F6"}, KeyPanel::textMemories},
    FrontPanelKey{{"textMemory3Button", 603, "", "Text memory 3", "Transmit text memory 3 of the present mode.", "F7"}, KeyPanel::textMemories},
    FrontPanelKey{{"textMemory4Button", 604, "", "Text memory 4", "Transmit text memory 4 of the present mode.", "F8"}, KeyPanel::textMemories},
    FrontPanelKey{{"textMemory5Button", 605, "", "Text memory 5", "Transmit text memory 5 of the present mode.", "F9"}, KeyPanel::textMemories},
    FrontPanelKey{{"", 606, "Clear log", "Clear the log of sent texts", "Empty the log of what was sent."}, KeyPanel::keyer},
    FrontPanelKey{{"muteButton", 610, "MUTE", "Mute", "Silence the receiver; press again for the volume as it was.", "Ctrl+M"}, KeyPanel::functions},

    FrontPanelKey{{"", 805, "Product page", "Product page", "Open Corvane's product page in the web browser."}, KeyPanel::none},
    FrontPanelKey{{"", 810, "Refresh", "Refresh band conditions", "Fetch the band conditions again."}, KeyPanel::lists},
    FrontPanelKey{{"", 811, "Refresh", "Refresh POTA spots", "Fetch the POTA spots again."}, KeyPanel::lists},
    FrontPanelKey{{"", 812, "Refresh", "Refresh NetLogger nets", "Fetch the active nets again."}, KeyPanel::lists},
    FrontPanelKey{{"", 813, "Refresh", "Refresh SOTA spots", "Fetch the SOTA spots again."}, KeyPanel::lists},
    FrontPanelKey{{"", 814, "Refresh", "Refresh the nets directory", "Fetch the nets directory again."}, KeyPanel::lists},
    FrontPanelKey{{"", 815, "Clear all", "Clear all auto memories", "Remove all auto memories and their notes."}, KeyPanel::autoMemories},

    FrontPanelKey{{"", 2010100, "Read from transceiver", "Read the radio setting menu", "Read the items of this menu group from the transceiver."}, KeyPanel::menuGroups},
    FrontPanelKey{{"", 2020100, "Read from transceiver", "Read the CW setting menu", "Read the items of this menu group from the transceiver."}, KeyPanel::menuGroups},
    FrontPanelKey{{"", 2030100, "Read from transceiver", "Read the operation setting menu", "Read the items of this menu group from the transceiver."}, KeyPanel::menuGroups},
    FrontPanelKey{{"", 2040100, "Read from transceiver", "Read the display setting menu", "Read the items of this menu group from the transceiver."}, KeyPanel::menuGroups},
    FrontPanelKey{{"", 2050000, "Read texts", "Read the keyer and text memories", "Read all fifteen keyer and text memories from the transceiver."}, KeyPanel::keyer},
};
// clang-format on

static_assert(std::ranges::adjacent_find(frontPanelKeys, std::ranges::greater_equal{},
                                         [](const FrontPanelKey& key) { return key.outlet.tag; }) ==
                  frontPanelKeys.end(),
              "found by binary search");

// The place of the key that starts with this tag; the table's size when there is none.
constexpr std::size_t frontPanelKeyIndex(int tag) {
    const auto row =
        std::ranges::lower_bound(frontPanelKeys, tag, {}, [](const FrontPanelKey& key) { return key.outlet.tag; });
    return row != frontPanelKeys.end() && row->outlet.tag == tag
               ? static_cast<std::size_t>(row - frontPanelKeys.begin())
               : frontPanelKeys.size();
}

}  // namespace corvane
