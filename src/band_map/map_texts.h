// What the band map says of its entries and bands, in a line or aloud.
#pragma once

#include <string>

#include "band_map/map_entries.h"

namespace corvane {

// What stands beside a mark: the name, cut to a few characters; before a watched one a star.
std::string labelText(const MapEntry& entry);

// "POTA K1ABC, US-1234, 14.285 MHz, USB, 4 minutes ago, General".
std::string entryText(const MapEntry& entry);
// The same with everything else that the list has: "..., Acadia National Park, US-ME".
std::string entryLine(const MapEntry& entry);

// A place without an entry: "14.2105 MHz, General".
std::string placeText(long long hertz);

// "12 spots, 4 min" beside the band: the number of spots and how old the newest is; "6 entries" without spots.
std::string countText(const BandEntries& entries);

// "20 meters, 6 entries".
std::string bandText(std::size_t band, const BandEntries& entries);

// What is read out: "20 meters, 6 entries. POTA K1ABC, ... SOTA ...", the five newest.
std::string readOut(std::size_t band, const BandEntries& entries);

}  // namespace corvane
