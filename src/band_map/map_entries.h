// The entries of the band map, made from the lists and memories.
#pragma once

#include <array>
#include <chrono>
#include <functional>
#include <vector>

#include "activity/watch_list.h"
#include "band_map/map_bands.h"
#include "band_map/map_entry.h"
#include "feeds/feed_state.h"
#include "memories/auto_memory_state.h"
#include "memories/memory_channel.h"

namespace corvane {

using BandEntries = std::vector<MapEntry>;  // of one band, from the lowest frequency up, the newest first at each

struct MapEntries {
    std::array<BandEntries, mapBands.size()> bands;  // by the rows of mapBands
    int outside = 0;                                 // entries with a frequency outside all bands
};

// Whether an entry is drawn, read out and walked to.
using EntryFilter = std::function<bool(const MapEntry& entry)>;

// Every row that has a frequency, nets only while they are on or about to be. `keep` is asked about each.
MapEntries mapEntries(const FeedState& lists, const MemoryTable& memories, const AutoMemoryState& autoMemories,
                      const WatchList& watched, std::chrono::system_clock::time_point now, const EntryFilter& keep);

// The watched first, then the newest, at last those that have closed; entries without an age have their kind's place.
bool comesFirst(const MapEntry& a, const MapEntry& b);

// The first `most` entries in this order.
std::vector<const MapEntry*> newestOf(const BandEntries& entries, std::size_t most);

}  // namespace corvane
