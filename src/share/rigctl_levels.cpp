#include "share/rigctl_levels.h"

#include <algorithm>
#include <cmath>

#include "wire/setting_codes.h"

namespace corvane {

namespace {

constexpr int full = 255;       // of the gains
constexpr int mostPower = 100;  // watts
constexpr int mostReduction = 15;
constexpr int mostBlanking = 10;

// The index of an entry is the number on the line.
constexpr std::array attenuators{0, 6, 12, 18};    // dB
constexpr std::array preAmplifiers{0, 10, 20};     // dB
constexpr std::array gainControls{0, 2, 5, 3, 6};  // off, fast, medium, slow, automatic
constexpr std::array meters{32, 2, 4, 64, 8, 1};   // power, compression, ALC, voltage, current, SWR

template <int most>
double asPart(int reported) {
    return static_cast<double>(std::clamp(reported, 0, most)) / most;
}

template <int most, int least>
std::optional<int> fromPart(double value) {
    return std::clamp(static_cast<int>(std::lround(std::clamp(value, 0.0, 1.0) * most)), least, most);
}

template <const auto& values>
double entry(int reported) {
    return values[static_cast<std::size_t>(std::clamp(reported, 0, static_cast<int>(values.size()) - 1))];
}

template <const auto& values>
std::optional<int> nearest(double value) {
    const auto found = std::ranges::min_element(values, {}, [value](int each) { return std::abs(each - value); });
    return static_cast<int>(found - values.begin());
}

// Kinds have no nearest one.
template <const auto& values>
std::optional<int> exactly(double value) {
    const auto found = std::ranges::find(values, value);
    return found == values.end() ? std::nullopt : std::optional(static_cast<int>(found - values.begin()));
}

// Decibels over S9, which is a reading of 90 to 130; an S unit below has 6 dB.
double strength(int reported) {
    if (reported < 90) return std::round((reported - 90) * 54.0 / 90);
    return reported <= 130 ? 0 : std::round((reported - 130) * 60.0 / (full - 130));
}

std::optional<int> notSet(double) { return std::nullopt; }

constexpr std::array levels{
    RigctlLevel{"PREAMP", 0, Item::preAmplifier, "PA0", 1, "", false, entry<preAmplifiers>, nearest<preAmplifiers>},
    RigctlLevel{"ATT", 1, Item::attenuator, "RA0", 1, "", false, entry<attenuators>, nearest<attenuators>},
    RigctlLevel{"AF", 3, Item::afGain, "AG0", 3, "", true, asPart<full>, fromPart<full, 0>},
    RigctlLevel{"RF", 4, Item::rfGain, "RG0", 3, "", true, asPart<full>, fromPart<full, 0>},
    RigctlLevel{"NR", 8, Item::reductionLevel, "RL0", 2, "", true, asPart<mostReduction>, fromPart<mostReduction, 1>},
    RigctlLevel{"RFPOWER", 12, Item::power, "PC", 3, "", true, asPart<mostPower>, fromPart<mostPower, lowestPower>},
    RigctlLevel{"AGC", 17, Item::agc, "GT0", 1, "", false, entry<gainControls>, exactly<gainControls>},
    RigctlLevel{"METER", 20, Item::meter, "MS", 1, "0", false, entry<meters>, exactly<meters>},
    RigctlLevel{"STRENGTH", 30, Item::signal, "", 0, "", false, strength, notSet},
    RigctlLevel{"NB", 38, Item::blankerLevel, "NL0", 3, "", true, asPart<mostBlanking>, fromPart<mostBlanking, 0>},
};

constexpr std::array<std::string_view, 20> unavailable{
    "KEYSPD", "SWR",  "ALC",   "RFPOWER_METER", "RAWSTR", "SQL",   "IF",  "MICGAIN", "CWPITCH", "COMP",
    "VOX",    "LOCK", "TUNER", "TONE",          "TSQL",   "SBKIN", "APF", "MON",     "RIT",     "XIT"};

}  // namespace

bool isUnavailable(std::string_view name) { return std::ranges::find(unavailable, name) != unavailable.end(); }

std::optional<RigctlLevel> rigctlLevel(std::string_view name) {
    const auto level = std::ranges::find(levels, name, &RigctlLevel::name);
    return level == levels.end() ? std::nullopt : std::optional(*level);
}

std::string rigctlLevelNames(bool toSet) {
    std::string names;
    for (const RigctlLevel& level : levels)
        if (!toSet || !level.command.empty()) names.append(level.name).append(" ");
    return names;
}

std::uint64_t rigctlLevelMask(bool toSet) {
    std::uint64_t mask = 0;
    for (const RigctlLevel& level : levels)
        if (!toSet || !level.command.empty()) mask |= std::uint64_t{1} << level.bit;
    return mask;
}

std::uint64_t rigctlFunctionMask() {
    std::uint64_t mask = 0;
    for (const RigctlFunction& function : rigctlFunctions) mask |= std::uint64_t{1} << function.bit;
    return mask;
}

}  // namespace corvane
