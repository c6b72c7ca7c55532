// Walking over the band map with the keyboard: from band to band, and in a band from entry to entry.
#pragma once

#include <optional>
#include <string>

#include "band_map/map_entries.h"

namespace corvane {

// Stop 0 is the lower edge of the band, then come its entries, then the upper edge; without a stop the walk is on the
// band as a whole, where it is after a step from another band.
struct MapCursor {
    std::size_t band = 0;
    std::optional<std::size_t> stop = {};

    bool operator==(const MapCursor&) const = default;
};

enum class MapStep { left, right, up, down, home, end };

// A step that leads nowhere leaves the cursor where it is.
MapCursor walked(MapCursor cursor, MapStep step, const MapEntries& entries);

// The entry on which the cursor is, or nullptr.
const MapEntry* entryAt(const MapCursor& cursor, const MapEntries& entries);
// The frequency of the entry or the edge, which a press tunes to.
std::optional<long long> hertzAt(const MapCursor& cursor, const MapEntries& entries);

// The cursor for new lists: on the entry that it was on; when that has gone, on the first one that is not below it, or
// at the upper edge. `was` is nothing for a cursor on no entry.
MapCursor followed(const MapCursor& cursor, const std::optional<MapEntry>& was, const MapEntries& entries);

// How many places a screen reader finds in a band: the band itself, its edges and entries. Place 0 is the band.
std::size_t placesOf(std::size_t band, const MapEntries& entries);
// What it says at a place: "20 meters, 6 entries", "POTA K1ABC, ...", "Lower edge of 20 meters, 14.000 MHz".
std::string spokenPlace(const MapCursor& cursor, const MapEntries& entries);

}  // namespace corvane
