// What the front-panel keys send, say and show. One row per key, found by its tag; what stands on the keys is said in
// display/front_panel_keys.h.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "display/button.h"

namespace corvane {

struct BandKey {
    int tag;                        // for an amateur band, its wavelength in metres
    std::string_view command;       // e.g. "BS05;"
    std::string_view announcement;  // what the voice guide says
};

inline constexpr int firstBandTag = 6;
inline constexpr int lastBandTag = 162;
inline constexpr int mediumWaveTag = 162;  // its command names the active VFO and is built when it is pressed

inline constexpr std::array bandKeys{
    BandKey{6, "BS10;", "magic band"},         BandKey{10, "BS09;", "10 meters"},
    BandKey{12, "BS08;", "12 meters"},         BandKey{15, "BS07;", "15 meters"},
    BandKey{17, "BS06;", "17 meters"},         BandKey{20, "BS05;", "20 meters"},
    BandKey{30, "BS04;", "30 meters"},         BandKey{40, "BS03;", "40 meters"},
    BandKey{60, "BS02;", "60 meters"},         BandKey{80, "BS01;", "80 meters"},
    BandKey{160, "BS00;", "gentlemens band"},  BandKey{161, "BS11;", "general"},
    BandKey{mediumWaveTag, "", "medium wave"},
};
static_assert(std::ranges::is_sorted(bandKeys, {}, &BandKey::tag));

inline constexpr int firstModeTag = 200;
inline constexpr std::string_view modeKeyCodes = "125734698CBDAEF0";  // mode codes of the tags 200 to 215

// A key with two states: pressed in its off tag it sends the one command and takes the on tag, pressed in its on tag
// the other.
struct ToggleKey {
    int offTag;  // the on tag is 1000 more
    std::string_view onCommand;
    std::string_view offCommand;
    Color onColor;
    std::string_view onTitle = {};  // empty: the title stays
    std::string_view offTitle = {};
};

inline constexpr int muteTag = 610;  // switches a picture and a flag besides, and sends the volume as it was

inline constexpr std::array toggleKeys{
    ToggleKey{225, "BI1;", "BI0;", Color::blue},
    ToggleKey{226, "NR01;", "NR00;", Color::blue},
    ToggleKey{227, "NB01;", "NB00;", Color::blue},
    ToggleKey{228, "BC01;", "BC00;", Color::blue},
    ToggleKey{229, "BI1;", "BI0;", Color::blue},
    ToggleKey{233, "BP00001;", "BP00000;", Color::blue},
    ToggleKey{234, "CO000001;", "CO000000;", Color::blue},
    ToggleKey{383, "SS0810000;", "SS0800000;", Color::red, "Held", "Hold"},
    ToggleKey{384, "SS0200000;", "SS0210000;", Color::red, "Marker", "Marker"},
};

// A key that always sends the same.
struct CommandKey {
    int tag;
    std::string_view command;
    std::string_view announcement = {};
};

inline constexpr std::array commandKeys{
    CommandKey{277, "VM;MC;IF;OI;"},
    CommandKey{351, "SS0300000;"},
    CommandKey{352, "SS0310000;"},
    CommandKey{353, "SS0320000;"},
    CommandKey{354, "SS0330000;"},
    CommandKey{355, "SS0340000;"},
    CommandKey{356, "SS0350000;"},
    CommandKey{357, "SS0360000;"},
    CommandKey{358, "SS0370000;"},
    CommandKey{359, "SS0380000;"},
    CommandKey{360, "SS0390000;"},
    CommandKey{361, "SS03A0000;"},
    CommandKey{379, "ZI0;"},
    CommandKey{380, "PC015;", "Tune power"},
    CommandKey{381, "PC100;", "Full power"},
    CommandKey{382, "PC015;AC002;"},
    CommandKey{460, "QI;"},
    CommandKey{461, "QR;"},
    CommandKey{2050000, "KM1;KM2;KM3;KM4;KM5;EM01;EM02;EM03;EM04;EM05;EM11;EM12;EM13;EM14;EM15;"},
};

struct StepKey {
    int tag;
    std::string_view direction;  // "up" or "down"
    int step;                    // hertz
};

inline constexpr std::array stepKeys{
    StepKey{450, "up", 250},
    StepKey{451, "down", 250},
    StepKey{452, "up", 1000},
    StepKey{453, "down", 1000},
};

// The row with this tag, or nullptr.
template <typename Rows>
constexpr auto rowWithTag(const Rows& rows, int tag) -> decltype(&*rows.begin()) {
    const auto row = std::ranges::find_if(rows, [tag](const auto& r) { return r.tag == tag; });
    return row == rows.end() ? nullptr : &*row;
}
constexpr const ToggleKey* toggleKey(int tag) {
    const auto row = std::ranges::find_if(
        toggleKeys, [tag](const ToggleKey& key) { return key.offTag == tag || key.offTag + onTagOffset == tag; });
    return row == toggleKeys.end() ? nullptr : &*row;
}

}  // namespace corvane
