#include "band_map/map_walk.h"

#include <fmt/core.h>

#include <algorithm>

#include "band_map/map_texts.h"
#include "feeds/row_facts.h"

namespace corvane {

namespace {

std::size_t upperEdge(std::size_t band, const MapEntries& entries) { return entries.bands[band].size() + 1; }

}  // namespace

MapCursor walked(MapCursor cursor, MapStep step, const MapEntries& entries) {
    const std::size_t last = upperEdge(cursor.band, entries);
    switch (step) {
        case MapStep::up:
            return {cursor.band > 0 ? cursor.band - 1 : 0};
        case MapStep::down:
            return {std::min(cursor.band + 1, mapBands.size() - 1)};
        case MapStep::home:
            return {cursor.band, 0};
        case MapStep::end:
            return {cursor.band, last};
        case MapStep::left:  // from the band to its highest entry
            return {cursor.band, cursor.stop ? *cursor.stop - (*cursor.stop > 0 ? 1 : 0) : last - 1};
        case MapStep::right:  // from the band to its lowest entry
            return {cursor.band, cursor.stop ? std::min(*cursor.stop + 1, last) : 1};
    }
    return cursor;
}

const MapEntry* entryAt(const MapCursor& cursor, const MapEntries& entries) {
    const BandEntries& band = entries.bands[cursor.band];
    return cursor.stop && *cursor.stop > 0 && *cursor.stop <= band.size() ? &band[*cursor.stop - 1] : nullptr;
}

std::optional<long long> hertzAt(const MapCursor& cursor, const MapEntries& entries) {
    if (!cursor.stop) return std::nullopt;
    if (const MapEntry* entry = entryAt(cursor, entries)) return entry->hertz;
    const Band& limits = limitsOf(cursor.band);
    return *cursor.stop == 0 ? limits.lowerBound : limits.upperBound;
}

MapCursor followed(const MapCursor& cursor, const std::optional<MapEntry>& was, const MapEntries& entries) {
    if (!cursor.stop || *cursor.stop == 0) return cursor;
    if (!was) return {cursor.band, upperEdge(cursor.band, entries)};
    const BandEntries& band = entries.bands[cursor.band];
    auto found = std::ranges::find_if(band, [&was](const MapEntry& each) { return sameEntry(each, *was); });
    if (found == band.end()) found = std::ranges::lower_bound(band, was->hertz, {}, &MapEntry::hertz);
    return {cursor.band, static_cast<std::size_t>(found - band.begin()) + 1};
}

std::size_t placesOf(std::size_t band, const MapEntries& entries) { return entries.bands[band].size() + 3; }

std::string spokenPlace(const MapCursor& cursor, const MapEntries& entries) {
    if (!cursor.stop) return bandText(cursor.band, entries.bands[cursor.band]);
    if (const MapEntry* entry = entryAt(cursor, entries)) return entryText(*entry);
    return fmt::format("{} edge of {}, {}", *cursor.stop == 0 ? "Lower" : "Upper", mapBands[cursor.band].spoken,
                       frequencyText(*hertzAt(cursor, entries)));
}

}  // namespace corvane
