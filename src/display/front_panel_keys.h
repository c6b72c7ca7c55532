// The keys of the front panel: what stands on each, where it is found, and what it does. One row per key.
#pragma once

#include <algorithm>
#include <array>

#include "display/control.h"
#include "display/key_actions.h"
#include "wire/operating_modes.h"

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

// Whether its keys change the frequency or the mode.
constexpr bool tunes(KeyPanel panel) {
    return panel == KeyPanel::header || panel == KeyPanel::bands || panel == KeyPanel::modes ||
           panel == KeyPanel::vfo || panel == KeyPanel::steps;
}

struct FrontPanelKey {
    Outlet outlet;
    KeyPanel panel;
    KeyAction action;
};

// clang-format off
inline constexpr std::array frontPanelKeys{
    FrontPanelKey{{"m6Button", 6, "6", "6 meters", "Go to the 6 m band (50 MHz), where you left it.", "Ctrl+-"}, KeyPanel::bands, BandKey{"BS10;", "magic band"}},
    FrontPanelKey{{"m10Button", 10, "10", "10 meters", "Go to the 10 m band (28 MHz), where you left it.", "Ctrl+0"}, KeyPanel::bands, BandKey{"BS09;", "10 meters"}},
    FrontPanelKey{{"m12Button", 12, "12", "12 meters", "Go to the 12 m band (24.9 MHz), where you left it.", "Ctrl+9"}, KeyPanel::bands, BandKey{"BS08;", "12 meters"}},
    FrontPanelKey{{"m15Button", 15, "15", "15 meters", "Go to the 15 m band (21 MHz), where you left it.", "Ctrl+8"}, KeyPanel::bands, BandKey{"BS07;", "15 meters"}},
    FrontPanelKey{{"m17Button", 17, "17", "17 meters", "Go to the 17 m band (18 MHz), where you left it.", "Ctrl+7"}, KeyPanel::bands, BandKey{"BS06;", "17 meters"}},
    FrontPanelKey{{"m20Button", 20, "20", "20 meters", "Go to the 20 m band (14 MHz), where you left it.", "Ctrl+6"}, KeyPanel::bands, BandKey{"BS05;", "20 meters"}},
    FrontPanelKey{{"m30Button", 30, "30", "30 meters", "Go to the 30 m band (10 MHz), where you left it.", "Ctrl+5"}, KeyPanel::bands, BandKey{"BS04;", "30 meters"}},
    FrontPanelKey{{"m40Button", 40, "40", "40 meters", "Go to the 40 m band (7 MHz), where you left it.", "Ctrl+4"}, KeyPanel::bands, BandKey{"BS03;", "40 meters"}},
    FrontPanelKey{{"m60Button", 60, "60", "60 meters", "Go to the 60 m band (5 MHz), where you left it.", "Ctrl+3"}, KeyPanel::bands, BandKey{"BS02;", "60 meters"}},
    FrontPanelKey{{"m80Button", 80, "80", "80 meters", "Go to the 80 m band (3.5 MHz), where you left it.", "Ctrl+2"}, KeyPanel::bands, BandKey{"BS01;", "80 meters"}},
    FrontPanelKey{{"m160Button", 160, "160", "160 meters", "Go to the 160 m band (1.8 MHz), where you left it.", "Ctrl+1"}, KeyPanel::bands, BandKey{"BS00;", "gentlemens band"}},
    FrontPanelKey{{"mgenButton", 161, "GEN", "General coverage", "Go to general coverage, where you left it.", "Ctrl+G"}, KeyPanel::bands, BandKey{"BS11;", "general"}},
    FrontPanelKey{{"mmwButton", 162, "MW", "Medium wave", "Go to medium wave: AM on 1100 kHz.", "Ctrl+Shift+G"}, KeyPanel::bands, MediumWaveKey{"medium wave"}},

    FrontPanelKey{{"", 200, "LSB", "Mode LSB", "Lower side band."}, KeyPanel::modes, ModeKey{'1'}},
    FrontPanelKey{{"", 201, "USB", "Mode USB", "Upper side band."}, KeyPanel::modes, ModeKey{'2'}},
    FrontPanelKey{{"", 202, "AM", "Mode AM", "Amplitude modulation."}, KeyPanel::modes, ModeKey{'5'}},
    FrontPanelKey{{"", 203, "CW-L", "Mode CW-L", "CW, lower side."}, KeyPanel::modes, ModeKey{'7'}},
    FrontPanelKey{{"", 204, "CW-U", "Mode CW-U", "CW, upper side."}, KeyPanel::modes, ModeKey{'3'}},
    FrontPanelKey{{"", 205, "FM", "Mode FM", "Frequency modulation."}, KeyPanel::modes, ModeKey{'4'}},
    FrontPanelKey{{"", 206, "RTTY-L", "Mode RTTY-L", "Radio teletype, lower side."}, KeyPanel::modes, ModeKey{'6'}},
    FrontPanelKey{{"", 207, "RTTY-U", "Mode RTTY-U", "Radio teletype, upper side."}, KeyPanel::modes, ModeKey{'9'}},
    FrontPanelKey{{"", 208, "DATA-L", "Mode DATA-L", "Data, lower side band."}, KeyPanel::modes, ModeKey{'8'}},
    FrontPanelKey{{"", 209, "DATA-U", "Mode DATA-U", "Data, upper side band."}, KeyPanel::modes, ModeKey{'C'}},
    FrontPanelKey{{"", 210, "FM-N", "Mode FM-N", "Frequency modulation, narrow."}, KeyPanel::modes, ModeKey{'B'}},
    FrontPanelKey{{"", 211, "AM-N", "Mode AM-N", "Amplitude modulation, narrow."}, KeyPanel::modes, ModeKey{'D'}},
    FrontPanelKey{{"", 212, "D-FM", "Mode DATA-FM", "Data on frequency modulation."}, KeyPanel::modes, ModeKey{'A'}},
    FrontPanelKey{{"", 213, "PSK", "Mode PSK", "Phase shift keying."}, KeyPanel::modes, ModeKey{'E'}},
    FrontPanelKey{{"", 214, "D-FM-N", "Mode DATA-FM-N", "Data on frequency modulation, narrow."}, KeyPanel::modes, ModeKey{'F'}},
    FrontPanelKey{{"", 215, "0", "Mode code 0", "Sends mode code 0, which no mode has."}, KeyPanel::none, ModeKey{'0'}},

    FrontPanelKey{{"", 225, "BK-IN", "Break-in, keyer", "Break-in on or off. This key keeps its own state; the one on the radio page follows the transceiver."}, KeyPanel::keyer, ToggleKey{"BI1;", "BI0;"}},
    FrontPanelKey{{"", 226, "NR", "Noise reduction", "Digital noise reduction on or off.", "Ctrl+Shift+R"}, KeyPanel::functions, ToggleKey{"NR01;", "NR00;"}},
    FrontPanelKey{{"", 227, "NB", "Noise blanker", "Noise blanker on or off.", "Ctrl+Shift+B"}, KeyPanel::functions, ToggleKey{"NB01;", "NB00;"}},
    FrontPanelKey{{"dnfButton", 228, "DNF", "Digital notch filter", "Automatic digital notch filter on or off.", "Ctrl+Shift+D"}, KeyPanel::functions, ToggleKey{"BC01;", "BC00;"}},
    FrontPanelKey{{"bkinButton", 229, "BK-IN", "Break-in", "Break-in on or off: keying switches to transmit by itself.", "Ctrl+Shift+K"}, KeyPanel::functions, ToggleKey{"BI1;", "BI0;"}},
    FrontPanelKey{{"notchButton", 233, "NOTCH", "Manual notch", "Manual notch filter on or off.", "Ctrl+Shift+N"}, KeyPanel::functions, ToggleKey{"BP00001;", "BP00000;"}},
    FrontPanelKey{{"contButton", 234, "CONT", "Contour", "Contour filter on or off.", "Ctrl+Shift+C"}, KeyPanel::functions, ToggleKey{"CO000001;", "CO000000;"}},

    FrontPanelKey{{"", 275, "A/B \u2192 A", "Swap VFOs, show A", "Swap the VFOs and read side A again.", "Ctrl+Shift+A"}, KeyPanel::vfo, SwapKey{"SV;VS;FA;IF;"}},
    FrontPanelKey{{"", 276, "A/B \u2192 B", "Swap VFOs, show B", "Swap the VFOs and read side B again."}, KeyPanel::vfo, SwapKey{"SV;VS;FB;OI;"}},
    FrontPanelKey{{"", 277, "V/M", "VFO or memory", "Switch between VFO and memory."}, KeyPanel::vfo, CommandKey{"VM;MC;IF;OI;"}},

    FrontPanelKey{{"", 300, "POWER ON", "Power on", "Switch the transceiver on; it takes about two seconds."}, KeyPanel::power, PowerOnKey{}},
    FrontPanelKey{{"", 301, "POWER OFF", "Power off", "Switch the transceiver off."}, KeyPanel::power, PowerOffKey{}},

    FrontPanelKey{{"", 351, "1", "Scope color 1", "Scope display in color 1."}, KeyPanel::scopeColors, FirstScopeColorKey{"SS0300000;"}},
    FrontPanelKey{{"", 352, "2", "Scope color 2", "Scope display in color 2."}, KeyPanel::scopeColors, CommandKey{"SS0310000;"}},
    FrontPanelKey{{"", 353, "3", "Scope color 3", "Scope display in color 3."}, KeyPanel::scopeColors, CommandKey{"SS0320000;"}},
    FrontPanelKey{{"", 354, "4", "Scope color 4", "Scope display in color 4."}, KeyPanel::scopeColors, CommandKey{"SS0330000;"}},
    FrontPanelKey{{"", 355, "5", "Scope color 5", "Scope display in color 5."}, KeyPanel::scopeColors, CommandKey{"SS0340000;"}},
    FrontPanelKey{{"", 356, "6", "Scope color 6", "Scope display in color 6."}, KeyPanel::scopeColors, CommandKey{"SS0350000;"}},
    FrontPanelKey{{"", 357, "7", "Scope color 7", "Scope display in color 7."}, KeyPanel::scopeColors, CommandKey{"SS0360000;"}},
    FrontPanelKey{{"", 358, "8", "Scope color 8", "Scope display in color 8."}, KeyPanel::scopeColors, CommandKey{"SS0370000;"}},
    FrontPanelKey{{"", 359, "9", "Scope color 9", "Scope display in color 9."}, KeyPanel::scopeColors, CommandKey{"SS0380000;"}},
    FrontPanelKey{{"", 360, "10", "Scope color 10", "Scope display in color 10."}, KeyPanel::scopeColors, CommandKey{"SS0390000;"}},
    FrontPanelKey{{"", 361, "11", "Scope color 11", "Scope display in color 11."}, KeyPanel::scopeColors, CommandKey{"SS03A0000;"}},

    FrontPanelKey{{"", 379, "ZIN", "CW zero in", "Tune to zero beat with the CW signal that is heard.", "Ctrl+Shift+E"}, KeyPanel::vfo, CommandKey{"ZI0;"}},
    FrontPanelKey{{"", 380, "15 W", "Tune power", "Transmit power 15 W, for tuning.", "Ctrl+Shift+T"}, KeyPanel::power, CommandKey{"PC015;", "Tune power"}},
    FrontPanelKey{{"", 381, "100 W", "Full power", "Transmit power 100 W.", "Ctrl+Shift+F"}, KeyPanel::power, CommandKey{"PC100;", "Full power"}},
    FrontPanelKey{{"", 382, "ATU TUNE", "Antenna tuner: tune", "Start the antenna tuner at 15 W. The transceiver transmits."}, KeyPanel::power, CommandKey{"PC015;AC002;"}},
    FrontPanelKey{{"", 383, "Hold", "Scope hold", "Hold the scope picture.", "Ctrl+H"}, KeyPanel::scope, ToggleKey{"SS0810000;", "SS0800000;", Color::red, "Held", "Hold"}},
    FrontPanelKey{{"", 384, "Marker", "Scope marker", "Scope marker on or off."}, KeyPanel::scope, ToggleKey{"SS0200000;", "SS0210000;", Color::red, "Marker", "Marker"}},

    FrontPanelKey{{"", 450, "+250", "Up 250 hertz", "Active VFO up 250 Hz.", "Ctrl+Up"}, KeyPanel::steps, StepKey{"up", 250}},
    FrontPanelKey{{"", 451, "\u2212250", "Down 250 hertz", "Active VFO down 250 Hz.", "Ctrl+Down"}, KeyPanel::steps, StepKey{"down", 250}},
    FrontPanelKey{{"", 452, "+1k", "Up 1 kilohertz", "Active VFO up 1 kHz.", "Ctrl+Shift+Up"}, KeyPanel::steps, StepKey{"up", 1000}},
    FrontPanelKey{{"", 453, "\u22121k", "Down 1 kilohertz", "Active VFO down 1 kHz.", "Ctrl+Shift+Down"}, KeyPanel::steps, StepKey{"down", 1000}},
    FrontPanelKey{{"", 460, "Q-M IN", "Quick memory: store", "Store the frequency in the quick memory bank.", "Ctrl+Shift+Q"}, KeyPanel::vfo, CommandKey{"QI;"}},
    FrontPanelKey{{"", 461, "Q-M OUT", "Quick memory: recall", "Recall the quick memory bank.", "Ctrl+Shift+W"}, KeyPanel::vfo, CommandKey{"QR;"}},

    FrontPanelKey{{"vqFreqAButton", 500, "", "VFO A", "Select VFO A.", "F2"}, KeyPanel::header, VfoKey{'A'}},
    FrontPanelKey{{"vqFreqBButton", 501, "", "VFO B", "Select VFO B.", "F3"}, KeyPanel::header, VfoKey{'B'}},
    FrontPanelKey{{"vqMemAButton", 502, "", "Memory", "Go to the memory channel.", "F4"}, KeyPanel::header, MemoryKey{}},
    FrontPanelKey{{"", 503, "MEM B", "Memory on side B", "Put side B on its memory channel."}, KeyPanel::vfo, MemoryBKey{}},

    FrontPanelKey{{"textMemory1Button", 601, "", "Text memory 1", "Transmit text memory 1 of the present mode.", "Shift+F1"}, KeyPanel::textMemories, TextMemoryKey{1}},
    FrontPanelKey{{"textMemory2Button", 602, "", "Text memory 2", "Transmit text memory 2 of the present mode.", "Shift+F2"}, KeyPanel::textMemories, TextMemoryKey{2}},
    FrontPanelKey{{"textMemory3Button", 603, "", "Text memory 3", "Transmit text memory 3 of the present mode.", "Shift+F3"}, KeyPanel::textMemories, TextMemoryKey{3}},
    FrontPanelKey{{"textMemory4Button", 604, "", "Text memory 4", "Transmit text memory 4 of the present mode.", "Shift+F4"}, KeyPanel::textMemories, TextMemoryKey{4}},
    FrontPanelKey{{"textMemory5Button", 605, "", "Text memory 5", "Transmit text memory 5 of the present mode.", "Shift+F5"}, KeyPanel::textMemories, TextMemoryKey{5}},
    FrontPanelKey{{"", 606, "Clear log", "Clear the log of sent texts", "Empty the log of what was sent."}, KeyPanel::keyer, ClearLogKey{}},
    FrontPanelKey{{"muteButton", 610, "MUTE", "Mute", "Silence the receiver; press again for the volume as it was.", "Ctrl+M"}, KeyPanel::functions, MuteKey{}},

    FrontPanelKey{{"", 805, "Product page", "Product page", "Open Corvane's product page in the web browser."}, KeyPanel::none, ProductPageKey{}},
    FrontPanelKey{{"", 810, "Refresh", "Refresh band conditions", "Fetch the band conditions again."}, KeyPanel::lists, RefreshKey{Feed::bandConditions}},
    FrontPanelKey{{"", 811, "Refresh", "Refresh POTA spots", "Fetch the POTA spots again."}, KeyPanel::lists, RefreshKey{Feed::pota}},
    FrontPanelKey{{"", 812, "Refresh", "Refresh NetLogger nets", "Fetch the active nets again."}, KeyPanel::lists, RefreshKey{Feed::netLogger}},
    FrontPanelKey{{"", 813, "Refresh", "Refresh SOTA spots", "Fetch the SOTA spots again."}, KeyPanel::lists, RefreshKey{Feed::sota}},
    FrontPanelKey{{"", 814, "Refresh", "Refresh the nets directory", "Fetch the nets directory again."}, KeyPanel::lists, RefreshKey{Feed::nets}},
    FrontPanelKey{{"", 815, "Clear all", "Clear all auto memories", "Remove all auto memories and their notes."}, KeyPanel::autoMemories, ClearAutoMemoriesKey{}},

    FrontPanelKey{{"", 2010100, "Read from transceiver", "Read the radio setting menu", "Read the items of this menu group from the transceiver."}, KeyPanel::menuGroups, ReadMenuKey{0}},
    FrontPanelKey{{"", 2020100, "Read from transceiver", "Read the CW setting menu", "Read the items of this menu group from the transceiver."}, KeyPanel::menuGroups, ReadMenuKey{1}},
    FrontPanelKey{{"", 2030100, "Read from transceiver", "Read the operation setting menu", "Read the items of this menu group from the transceiver."}, KeyPanel::menuGroups, ReadMenuKey{2}},
    FrontPanelKey{{"", 2040100, "Read from transceiver", "Read the display setting menu", "Read the items of this menu group from the transceiver."}, KeyPanel::menuGroups, ReadMenuKey{3}},
    FrontPanelKey{{"", 2050000, "Read texts", "Read the keyer and text memories", "Read all fifteen keyer and text memories from the transceiver."}, KeyPanel::keyer, CommandKey{"KM1;KM2;KM3;KM4;KM5;EM01;EM02;EM03;EM04;EM05;EM11;EM12;EM13;EM14;EM15;"}},
};
// clang-format on

static_assert(std::ranges::adjacent_find(frontPanelKeys, std::ranges::greater_equal{},
                                         [](const FrontPanelKey& key) { return key.outlet.tag; }) ==
                  frontPanelKeys.end(),
              "found by binary search");

static_assert(std::ranges::all_of(operatingModes,
                                  [](const OperatingMode& mode) {
                                      return std::ranges::any_of(frontPanelKeys, [&](const FrontPanelKey& key) {
                                          return std::holds_alternative<ModeKey>(key.action) &&
                                                 std::get<ModeKey>(key.action).code == mode.code;
                                      });
                                  }),
              "every mode has a key");

// The place of the key that starts with this tag; the table's size when there is none.
constexpr std::size_t frontPanelKeyIndex(int tag) {
    const auto row =
        std::ranges::lower_bound(frontPanelKeys, tag, {}, [](const FrontPanelKey& key) { return key.outlet.tag; });
    return row != frontPanelKeys.end() && row->outlet.tag == tag
               ? static_cast<std::size_t>(row - frontPanelKeys.begin())
               : frontPanelKeys.size();
}

// The key that has this tag now: its first one or, of a key with two, the other. nullptr when there is none.
constexpr const FrontPanelKey* frontPanelKey(int tag) {
    if (const std::size_t index = frontPanelKeyIndex(tag); index < frontPanelKeys.size()) return &frontPanelKeys[index];
    const std::size_t index = frontPanelKeyIndex(tag - onTagOffset);
    return index < frontPanelKeys.size() && hasTwoTags(frontPanelKeys[index].action) ? &frontPanelKeys[index] : nullptr;
}

// The tags of band keys. One among them without a key changes the display like a band key and sends nothing.
inline constexpr int firstBandTag = 6;
inline constexpr int lastBandTag = 162;

}  // namespace corvane
