// The operating presets: a frequency with its mode, scope settings and function-knob assignment in one step.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace corvane {

// The command is the prefix, the letter of the active VFO and the suffix: the prefix ends with the "F" of "FA" or "FB",
// the suffix begins with nine digits of hertz.
struct Preset {
    std::string_view group;  // its heading in the pop-up
    std::string_view title;
    std::string_view prefix;
    std::string_view suffix;
};

// clang-format off
inline constexpr std::array presets{
    Preset{"Phone", "Phone - 6m", "MD02;SS0590000;F", "052000000;SS0670000;SF1E;"},
    Preset{"Phone", "Phone - 10m", "MD02;SS0590000;F", "029000000;SS0670000;SF1E;"},
    Preset{"Phone", "Phone - 12m", "MD02;SS0560000;F", "024960000;SS0670000;SF1E;"},
    Preset{"Phone", "Phone - 15m", "MD02;SS0580000;F", "021200000;SS0670000;SF1E;"},
    Preset{"Phone", "Phone - 17m", "MD02;SS0560000;F", "018139000;SS0670000;SF1E;"},
    Preset{"Phone", "Phone - 20m", "MD02;SS0570000;F", "014250000;SS06A0000;SF1E;"},
    Preset{"Phone", "Phone - 40m", "MD01;SS0570000;F", "007200000;SS06A0000;SF1E;"},
    Preset{"Phone", "Phone - 80m", "MD01;SS0580000;F", "003750000;SS06A0000;SF1E;"},
    Preset{"CW", "CW - 10m", "MD03;SS0640000;F", "028100000;SS0570000;SS0670000;SF1H;BI1;"},
    Preset{"CW", "CW - 15m", "MD03;SS0640000;F", "021100000;SS0570000;SS0670000;SF1H;BI1;"},
    Preset{"CW", "CW - 20m", "MD03;SS0640000;F", "014050000;SS0560000;SS0670000;SF1H;BI1;"},
    Preset{"CW", "CW - 40m", "MD07;SS0640000;F", "007050000;SS0560000;SS0670000;SF1H;BI1;"},
    Preset{"CW", "CW - 80m", "MD07;SS0640000;F", "003550000;SS0560000;SS0670000;SF1H;BI1;"},
    Preset{"RTTY", "RTTY - 20m", "MD09;SS0640000;F", "014090000;SS0540000;SS0670000;SF1E;"},
    Preset{"RTTY", "RTTY - 40m (1)", "MD06;SS0640000;F", "007037500;SS0540000;SS0670000;SF1E;"},
    Preset{"RTTY", "RTTY - 40m (2)", "MD06;SS0640000;F", "007090000;SS0540000;SS0670000;SF1E;"},
    Preset{"PSK31 and FT8", "PSK31 - 20m", "MD0E;SS0640000;F", "014070150;SS0530000;SS0670000;SF1E;"},
    Preset{"PSK31 and FT8", "PSK31 - 40m", "MD0E;SS0640000;F", "007080150;SS0530000;SS0670000;SF1E;"},
    Preset{"PSK31 and FT8", "FT8 - 40m", "MD02;SS0640000;F", "007074000;SS0530000;SS0670000;SF1E;"},
    Preset{"60 m channels", "60m - Chan 1", "MD02;SS0640000;F", "005330500;SS0670000;SF1E;"},
    Preset{"60 m channels", "60m - Chan 2", "MD02;SS0640000;F", "005346500;SS0670000;SF1E;"},
    Preset{"60 m channels", "60m - Chan 3", "MD02;SS0640000;F", "005357000;SS0670000;SF1E;"},
    Preset{"60 m channels", "60m - Chan 4", "MD02;SS0640000;F", "005371500;SS0670000;SF1E;"},
    Preset{"60 m channels", "60m - Chan 5", "MD02;SS0640000;F", "005403500;SS0670000;SF1E;"},
    Preset{"Shortwave broadcast", "Shortwave - 11m", "MD05;SS0580000;F", "025885000;SS0670000;SF1E;"},
    Preset{"Shortwave broadcast", "Shortwave - 13m", "MD05;SS0580000;F", "021650000;SS0670000;SF1E;"},
    Preset{"Shortwave broadcast", "Shortwave - 15m", "MD05;SS0570000;F", "018960000;SS0670000;SF1E;"},
    Preset{"Shortwave broadcast", "Shortwave - 16m", "MD05;SS0580000;F", "017690000;SS0670000;SF1E;"},
    Preset{"Shortwave broadcast", "Shortwave - 19m", "MD05;SS0590000;F", "015465000;SS0670000;SF1E;"},
    Preset{"Shortwave broadcast", "Shortwave - 22m", "MD05;SS0580000;F", "013720000;SS0670000;SF1E;"},
    Preset{"Shortwave broadcast", "Shortwave - 25m", "MD05;SS0580000;F", "011850000;SS0670000;SF1E;"},
    Preset{"Shortwave broadcast", "Shortwave - 31m", "MD05;SS0580000;F", "009650000;SS0670000;SF1E;"},
    Preset{"Shortwave broadcast", "Shortwave - 41m", "MD05;SS0560000;F", "007350000;SS0670000;SF1E;"},
    Preset{"Shortwave broadcast", "Shortwave - 49m", "MD05;SS0590000;F", "006000000;SS0670000;SF1E;"},
    Preset{"Shortwave broadcast", "Shortwave - 60m", "MD05;SS0580000;F", "004872500;SS0670000;SF1E;"},
    Preset{"Shortwave broadcast", "Shortwave - 90m", "MD05;SS0570000;F", "003300000;SS0670000;SF1E;"},
    Preset{"Shortwave broadcast", "Shortwave - 120m", "MD05;SS0570000;F", "002397500;SS0670000;SF1E;"},
    Preset{"Medium wave and citizens band", "Medium Wave", "MD05;F", "001100000;SS0670000;SS0590000;SF1E;"},
    Preset{"Medium wave and citizens band", "Citizens Band", "MD05;F", "027185000;SS0670000;SS0580000;SF1E;"},
};
// clang-format on

static_assert(std::ranges::all_of(presets, [](const Preset& preset) {
    return preset.prefix.ends_with(";F") && preset.suffix.find(';') == 9 && preset.suffix.ends_with(';');
}));

// The preset with exactly this title, or nullptr.
constexpr const Preset* presetWithTitle(std::string_view title) {
    const auto row = std::ranges::find(presets, title, &Preset::title);
    return row == presets.end() ? nullptr : &*row;
}

}  // namespace corvane
