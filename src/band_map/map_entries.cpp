#include "band_map/map_entries.h"

#include <fmt/core.h>

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <utility>

#include "band_map/net_time.h"
#include "feeds/row_facts.h"
#include "memories/memory_commands.h"
#include "wire/decimal_number.h"
#include "wire/operating_modes.h"
#include "wire/utf8.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

using Instant = std::chrono::system_clock::time_point;

constexpr std::size_t longestName = 100;  // characters of a note

// What is there of these texts, with ", " between.
std::string joined(std::initializer_list<std::string> texts) {
    std::string line;
    for (const std::string& text : texts)
        if (!text.empty()) line += line.empty() ? text : ", " + text;
    return line;
}

std::string counted(const std::string& number, std::string_view noun) {
    return fmt::format("{} {}{}", number, noun, number == "1" ? "" : "s");
}

std::string sideBand(long long hertz) { return std::string(*modeName(voiceSideBands.usual(hertz))); }

// Spots say "SSB" for what is tuned as LSB or USB.
std::string spotMode(const std::string& mode, long long hertz) { return mode == "SSB" ? sideBand(hertz) : mode; }

// What all entries of lists have in common.
MapEntry entryOf(EntryKind kind, const RowFacts& facts) {
    return {.kind = kind, .hertz = facts.hertz, .name = facts.name, .detail = facts.reference, .mode = facts.mode};
}

MapEntry spotEntry(EntryKind kind, const RowFacts& facts) {
    MapEntry entry = entryOf(kind, facts);
    entry.mode = spotMode(facts.mode, facts.hertz);
    entry.minutes = facts.minutes;
    return entry;
}

MapEntry potaEntry(const RowFacts& facts, const FeedRow& spot) {
    MapEntry entry = spotEntry(EntryKind::pota, facts);
    entry.more = joined({facts.place, fieldOf(spot, 8), facts.comment});
    return entry;
}

MapEntry sotaEntry(const RowFacts& facts, const FeedRow& spot) {
    MapEntry entry = spotEntry(EntryKind::sota, facts);
    entry.more = joined({facts.place, fieldOf(spot, 7), fieldOf(spot, 8), facts.comment});
    entry.closed = saysQrt(facts.comment);
    return entry;
}

MapEntry netLoggerEntry(const RowFacts& facts, const FeedRow& net) {
    MapEntry entry = entryOf(EntryKind::netLogger, facts);
    const std::string subscribers = fieldOf(net, 3);
    entry.detail = subscribers.empty() ? "" : counted(subscribers, "subscriber");
    return entry;
}

std::optional<MapEntry> netEntry(const RowFacts& facts, const FeedRow& net, Instant now) {
    const auto minutes = minutesToNet(net[2], now);
    if (!minutes) return std::nullopt;
    MapEntry entry = entryOf(EntryKind::net, facts);
    entry.detail = *minutes > 0 ? "in " + counted(std::to_string(*minutes), "minute") : std::string("on now");
    entry.more = fieldOf(net, 2) + " UTC";
    return entry;
}

MapEntry stationEntry(const RowFacts& facts, const FeedRow& station) {
    MapEntry entry = entryOf(EntryKind::mediumWave, facts);
    const std::string power = fieldOf(station, 3);
    entry.detail = fieldOf(station, 2);
    entry.more = power.empty() ? "" : power + " kW";
    return entry;
}

std::optional<MapEntry> memoryEntry(std::size_t row, const MemoryChannel& channel) {
    const int tuned = isProgrammed(channel) ? decimalOrZero(channel.frequency) : 0;
    if (tuned <= 0) return std::nullopt;
    const auto mode = channel.mode.size() == 1 ? modeName(channel.mode.front()) : std::nullopt;
    return MapEntry{.kind = EntryKind::memory,
                    .hertz = tuned,
                    .name = std::string(trimmed(fmt::format("M-{:02} {}", row + 1, trimmed(channel.tag)))),
                    .mode = std::string(mode.value_or(""))};
}

std::optional<MapEntry> autoMemoryEntry(const AutoMemoryState& memories, std::size_t row) {
    const int tuned = decimalOrZero(memories.vqAutoMemoryArray[row]);
    if (tuned <= 0) return std::nullopt;
    const std::string_view note = trimmed(memories.vqAutoNotesArray[row]);
    return MapEntry{.kind = EntryKind::autoMemory,
                    .hertz = tuned,
                    .name = note.empty() ? withDecimals(tuned / 1e6, 3) : std::string(utf8Prefix(note, longestName)),
                    .mode = memories.vqAutoModeArray[row]};
}

// Puts entries into their bands.
class Sorter {
public:
    Sorter(MapEntries& made, const EntryFilter& keep) : made_(made), keep_(keep) {}

    void add(std::optional<MapEntry> entry, std::size_t row) {
        if (!entry) return;
        entry->row = static_cast<int>(row);
        if (!keep_(*entry)) return;
        if (const auto band = mapBandOf(entry->hertz))
            made_.bands[*band].push_back(std::move(*entry));
        else
            ++made_.outside;
    }
    template <typename Make>
    void addList(Feed feed, const FeedList& list, Make make) {
        for (std::size_t row = 0; row < list.size(); ++row)
            if (const auto facts = rowFacts(feed, list[row])) add(make(*facts, list[row]), row);
    }

private:
    MapEntries& made_;
    const EntryFilter& keep_;
};

long long rank(const MapEntry& entry) { return entry.minutes.value_or(mapKind(entry.kind).agelessMinutes); }

}  // namespace

MapEntries mapEntries(const FeedState& lists, const MemoryTable& memories, const AutoMemoryState& autoMemories,
                      const WatchList& watched, Instant now, const EntryFilter& keep) {
    MapEntries made;
    Sorter sorter(made, keep);
    const auto spots = [&](auto make, Feed feed) {
        return [make, &watched, since = lists.minutesSince(feed, now)](const RowFacts& facts, const FeedRow& row) {
            MapEntry entry = make(facts, row);
            if (entry.minutes) *entry.minutes += since;
            entry.watched = watched.watches(facts.name, facts.reference);
            return entry;
        };
    };
    sorter.addList(Feed::pota, lists.vqPotaArray, spots(potaEntry, Feed::pota));
    sorter.addList(Feed::sota, lists.vqSotaArray, spots(sotaEntry, Feed::sota));
    sorter.addList(Feed::netLogger, lists.vqNetLoggerArray, netLoggerEntry);
    sorter.addList(Feed::nets, lists.vqNetsArray,
                   [now](const RowFacts& facts, const FeedRow& net) { return netEntry(facts, net, now); });
    sorter.addList(Feed::mediumWave, lists.vqMWArray, stationEntry);
    for (std::size_t row = 0; row < memories.size(); ++row) sorter.add(memoryEntry(row, memories[row]), row);
    for (std::size_t row = 0; row < autoMemories.vqAutoMemoryArray.size(); ++row)
        sorter.add(autoMemoryEntry(autoMemories, row), row);
    for (BandEntries& band : made.bands)
        std::ranges::stable_sort(band, [](const MapEntry& a, const MapEntry& b) {
            return a.hertz != b.hertz ? a.hertz < b.hertz : comesFirst(a, b);
        });
    return made;
}

bool comesFirst(const MapEntry& a, const MapEntry& b) {
    if (a.closed != b.closed) return b.closed;
    return a.watched != b.watched ? a.watched : rank(a) < rank(b);
}

std::vector<const MapEntry*> newestOf(const BandEntries& entries, std::size_t most) {
    std::vector<const MapEntry*> newest;
    for (const MapEntry& entry : entries) newest.push_back(&entry);
    std::ranges::stable_sort(newest, [](const MapEntry* a, const MapEntry* b) { return comesFirst(*a, *b); });
    newest.resize(std::min(newest.size(), most));
    return newest;
}

}  // namespace corvane
