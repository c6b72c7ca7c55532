// What stands on the band map: one entry for each row of the lists and memories that has a frequency.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "display/display.h"

namespace corvane {

enum class EntryKind { pota, sota, netLogger, net, mediumWave, memory, autoMemory };
// The chip that shows or hides the entries of a kind.
constexpr Chip chipOf(EntryKind kind) {
    return static_cast<Chip>(static_cast<int>(Chip::pota) + static_cast<int>(kind));
}
static_assert(chipOf(EntryKind::autoMemory) == Chip::autoMemory && chipOf(EntryKind::net) == Chip::net);

// How an entry is drawn: the kinds differ in shape, not only in colour.
enum class MarkShape { disc, triangle, square, diamond, cross, pennant, ring };

struct MapKind {
    EntryKind kind;
    std::string_view name;  // "POTA"
    MarkShape shape;
    Color color;
    bool isSpot;
    // Entries of a kind without ages stand among the others as if they were so many minutes old: a net is on the air
    // now, a memory can wait.
    int agelessMinutes;
    TableView Display::*table;
    std::string_view tuneColumn;  // with the row's Tune key; empty for memory channels, which are recalled
};

inline constexpr std::array mapKinds{
    MapKind{EntryKind::pota, "POTA", MarkShape::disc, Color::green, true, 100'000, &Display::potaTable, "tune"},
    MapKind{EntryKind::sota, "SOTA", MarkShape::triangle, Color::orange, true, 100'000, &Display::sotaTable, "tune2"},
    MapKind{EntryKind::netLogger, "NetLogger", MarkShape::square, Color::blue, false, 0, &Display::netLoggerTable,
            "tune"},
    MapKind{EntryKind::net, "Net", MarkShape::diamond, Color::purple, false, 1, &Display::netsTable, "tune3"},
    MapKind{EntryKind::mediumWave, "Station", MarkShape::cross, Color::brown, false, 400'000, &Display::mwTable,
            "tune3"},
    MapKind{EntryKind::memory, "Memory", MarkShape::pennant, Color::gray, false, 300'000, &Display::memoriesTable, ""},
    MapKind{EntryKind::autoMemory, "Auto memory", MarkShape::ring, Color::pink, false, 200'000, &Display::autoMemTable,
            "tune"},
};
constexpr const MapKind& mapKind(EntryKind kind) { return mapKinds[static_cast<std::size_t>(kind)]; }
static_assert(
    [] {
        for (std::size_t i = 0; i < mapKinds.size(); ++i)
            if (mapKinds[i].kind != static_cast<EntryKind>(i)) return false;
        return true;
    }(),
    "in the order of EntryKind");

struct MapEntry {
    EntryKind kind = EntryKind::pota;
    int row = 0;                            // of its table
    long long hertz = 0;                    // what its Tune key tunes to
    std::string name = {};                  // what its label says: "K1ABC"
    std::string detail = {};                // the park, summit, city or time: "US-1234"
    std::string more = {};                  // what there is beside that; may be empty
    std::string mode = {};                  // "USB", or as the list has it
    std::optional<long long> minutes = {};  // the age of a spot, as its table shows it
    bool watched = false;                   // such an entry gets its label first
    bool closed = false;                    // says that it is off the air; it comes last

    bool operator==(const MapEntry&) const = default;
};

// Whether both stand for the same station, net or memory, though perhaps at another time or in another row.
inline bool sameEntry(const MapEntry& a, const MapEntry& b) {
    return a.kind == b.kind && a.hertz == b.hertz && a.name == b.name;
}

}  // namespace corvane
