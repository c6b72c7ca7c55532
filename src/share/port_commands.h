// What the commands of a program at the virtual port are: one row each.
#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "share/shared_item.h"

namespace corvane {

// A command begins with `name`. Its read has no more than `readLength` characters, without ";"; 0: it has no read.
struct PortCommand {
    enum class Kind : unsigned char {
        asks,       // only reads
        sets,       // and what it sets is no danger
        transmits,  // or switches the transceiver off, which ends a transmission
        stores,     // into memories or the setup menu
        own,        // answered here
    };
    // A setting that programs send often: behind the name stand digits alone, a value within these limits. What comes
    // faster than the line carries is left out; the last value counts.
    struct Paced {
        Item item;
        int lowest;
        int highest;
    };

    std::string_view name;
    std::size_t readLength;
    Kind kind;
    std::optional<Paced> paced = {};
    std::string_view harmless = {};  // the commands of this name that do not transmit
    bool reported = true;            // by the transceiver itself when it changes
};

inline constexpr std::array portCommands = [] {
    using enum PortCommand::Kind;
    using Paced = PortCommand::Paced;
    constexpr bool unreported = false;
    return std::array{
        PortCommand{"AC", 2, transmits, {}, "AC000 AC001"},
        PortCommand{"AG0", 3, sets, Paced{Item::afGain, 0, 255}},
        PortCommand{"AI", 2, own, {}, {}, unreported},
        PortCommand{"BC0", 3, sets, Paced{Item::autoNotch, 0, 1}},
        PortCommand{"BI", 2, sets, Paced{Item::breakIn, 0, 1}},
        PortCommand{"BP00", 4, sets, Paced{Item::notch, 0, 1}},
        PortCommand{"BS", 0, sets},
        PortCommand{"CO00", 4, sets},
        PortCommand{"EM", 4, stores, {}, {}, unreported},
        PortCommand{"EN", 0, transmits},
        PortCommand{"EX", 8, stores},
        PortCommand{"FA", 2, sets, Paced{Item::frequencyA, 30'000, 75'000'000}},
        PortCommand{"FB", 2, sets, Paced{Item::frequencyB, 30'000, 75'000'000}},
        PortCommand{"GT0", 3, sets},
        PortCommand{"ID", 2, asks, {}, {}, unreported},
        PortCommand{"IF", 2, asks},
        PortCommand{"KM", 3, stores, {}, {}, unreported},
        PortCommand{"KY", 0, transmits},
        PortCommand{"MA", 0, sets},
        PortCommand{"MC", 2, sets},
        PortCommand{"MD0", 3, sets},
        PortCommand{"MR", 5, asks, {}, {}, unreported},
        PortCommand{"MS", 2, sets},
        PortCommand{"MT", 5, stores, {}, {}, unreported},
        PortCommand{"MW", 0, stores},
        PortCommand{"NB0", 3, sets, Paced{Item::blanker, 0, 1}},
        PortCommand{"NL0", 3, sets, Paced{Item::blankerLevel, 0, 10}},
        PortCommand{"NR0", 3, sets, Paced{Item::reduction, 0, 1}},
        PortCommand{"OI", 2, asks},
        PortCommand{"PA0", 3, sets, Paced{Item::preAmplifier, 0, 2}},
        PortCommand{"PC", 2, sets, Paced{Item::power, 5, 100}},
        PortCommand{"PS", 2, transmits},
        PortCommand{"QI", 0, stores},
        PortCommand{"QR", 0, sets},
        PortCommand{"RA0", 3, sets, Paced{Item::attenuator, 0, 3}},
        PortCommand{"RF0", 3, sets},
        PortCommand{"RG0", 3, sets, Paced{Item::rfGain, 0, 255}},
        PortCommand{"RL0", 3, sets, Paced{Item::reductionLevel, 1, 15}},
        PortCommand{"RM", 3, asks},
        PortCommand{"SF", 3, sets},
        PortCommand{"SS0", 4, sets},
        PortCommand{"ST", 2, sets, Paced{Item::split, 0, 1}},
        PortCommand{"SV", 0, sets},
        PortCommand{"TX", 2, transmits, {}, "TX0"},
        PortCommand{"VM", 0, sets},
        PortCommand{"VS", 2, sets},
        PortCommand{"ZI", 0, sets},
    };
}();
static_assert(std::ranges::is_sorted(portCommands, {}, &PortCommand::name), "found by binary search");
static_assert(std::ranges::adjacent_find(portCommands,
                                         [](const PortCommand& row, const PortCommand& next) {
                                             return next.name.starts_with(row.name);
                                         }) == portCommands.end(),
              "no row begins another");

// The row of a command or a response, or nullptr.
const PortCommand* portCommand(std::string_view text);

// What is to be done with a command without its ";".
struct PortRequest {
    enum class Action : unsigned char {
        refuse,    // the transceiver knows no such command, or would not take the value
        answer,    // "AI", "AI0", "AI1"
        read,      // "FA"
        set,       // "SV"
        pace,      // "FA014250000": `value` of `item`, the last one given counts
        mode,      // "MD02"
        key,       // "TX1"
        unkey,     // "TX0"
        transmit,  // "KY6"
        store,     // "MW001..."
    };
    Action action = Action::refuse;
    const PortCommand* command = nullptr;
    std::optional<Item> item = {};  // what it reads or paces, if it is one of those that are shared
    int value = 0;
};

PortRequest portRequest(std::string_view command);

}  // namespace corvane
