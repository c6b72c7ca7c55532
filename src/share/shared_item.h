// What of the transceiver other programs read and set, and where it stands in a response: one row each.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <string_view>

namespace corvane {

// Those of side A and side B stand side by side.
enum class Item : unsigned char {
    frequencyA,  // hertz
    frequencyB,
    modeA,  // the code: '2' is USB
    modeB,
    memoryA,  // 1: a memory channel tunes the side
    memoryB,
    clarifierA,  // hertz, 0 while it is off for receiving
    clarifierB,
    transmitClarifierA,  // hertz, 0 while it is off for transmitting
    transmitClarifierB,
    vfo,       // 0: A receives
    channel,   // 1 to 99
    split,     // 1: transmits on the other VFO
    transmit,  // 0: receives, 1: keyed by a command, 2: by the microphone or a key
    afGain,
    rfGain,
    power,  // watts
    agc,
    attenuator,
    preAmplifier,
    blanker,
    blankerLevel,
    reduction,
    reductionLevel,
    autoNotch,
    notch,
    breakIn,
    meter,
    signal,
    switchedOn,
    autoInformation,
};
inline constexpr std::size_t itemCount = 31;
static_assert(static_cast<std::size_t>(Item::autoInformation) + 1 == itemCount);

constexpr std::size_t index(Item item) { return static_cast<std::size_t>(item); }

// The item of side B that goes with one of side A.
constexpr Item ofSide(Item sideA, int side) { return static_cast<Item>(index(sideA) + static_cast<std::size_t>(side)); }

// A response that reports one item as digits: "AG0128" is row {"AG0", 3}. `request` asks for it.
struct ReportRow {
    std::string_view name;
    std::size_t digits;
    Item item;
    std::string_view request;
};

inline constexpr std::array reportRows{
    ReportRow{"AG0", 3, Item::afGain, "AG0;"},
    ReportRow{"AI", 1, Item::autoInformation, "AI;"},
    ReportRow{"BC0", 1, Item::autoNotch, "BC0;"},
    ReportRow{"BI", 1, Item::breakIn, "BI;"},
    ReportRow{"BP00", 3, Item::notch, "BP00;"},
    ReportRow{"FA", 9, Item::frequencyA, "FA;"},
    ReportRow{"FB", 9, Item::frequencyB, "FB;"},
    ReportRow{"GT0", 1, Item::agc, "GT0;"},
    ReportRow{"MC", 3, Item::channel, "MC;"},
    ReportRow{"MS", 1, Item::meter, "MS;"},
    ReportRow{"NB0", 1, Item::blanker, "NB0;"},
    ReportRow{"NL0", 3, Item::blankerLevel, "NL0;"},
    ReportRow{"NR0", 1, Item::reduction, "NR0;"},
    ReportRow{"PA0", 1, Item::preAmplifier, "PA0;"},
    ReportRow{"PC", 3, Item::power, "PC;"},
    ReportRow{"PS", 1, Item::switchedOn, "PS;"},
    ReportRow{"RA0", 1, Item::attenuator, "RA0;"},
    ReportRow{"RG0", 3, Item::rfGain, "RG0;"},
    ReportRow{"RL0", 2, Item::reductionLevel, "RL0;"},
    ReportRow{"RM1", 3, Item::signal, "RM1;"},
    ReportRow{"ST", 1, Item::split, "ST;"},
    ReportRow{"TX", 1, Item::transmit, "TX;"},
    ReportRow{"VS", 1, Item::vfo, "VS;"},
};
static_assert(std::ranges::is_sorted(reportRows, {}, &ReportRow::name), "found by binary search");

// The command that asks for an item. The window shows the side of the last frequency or record as the active one: a
// question about the other side is followed by one about the side in use.
std::string_view requestFor(Item item, int activeSide);

// Calls `take` with each item that a response without its ";" reports, and its value: "FA014250000" is frequencyA
// 14250000, "MD02" is the mode '2' of the active side, an "IF" or "OI" record is the five items of its side. A response
// that is cut, or of another kind, reports nothing.
void forEachReported(std::string_view response, int activeSide, const std::function<void(Item, int)>& take);

}  // namespace corvane
