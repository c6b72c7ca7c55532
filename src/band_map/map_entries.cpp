#include "band_map/map_entries.h"

#include <fmt/core.h>

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <utility>

#include "band_map/net_time.h"
#include "feeds/hertz.h"
#include "feeds/tune_command.h"
#include "memories/memory_commands.h"
#include "wire/decimal_number.h"
#include "wire/operating_modes.h"
#include "wire/utf8.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

using Instant = std::chrono::system_clock::time_point;

constexpr std::size_t longestName = 100;  // characters of a note

constexpr float kilohertz = 1'000.0F;
constexpr float megahertz = 1'000'000.0F;

std::string field(const FeedRow& row, std::size_t position) {
    if (position >= row.fields.size()) return {};
    return std::string(trimmed(row[position]));
}

// What is there of these texts, with ", " between.
std::string joined(std::initializer_list<std::string> texts) {
    std::string line;
    for (const std::string& text : texts)
        if (!text.empty()) line += line.empty() ? text : ", " + text;
    return line;
}

std::string sideBand(long long hertz) { return std::string(*modeName(voiceSideBands.usual(hertz))); }

// Spots say "SSB" for what is tuned as LSB or USB.
std::string spotMode(const std::string& mode, long long hertz) { return mode == "SSB" ? sideBand(hertz) : mode; }

std::optional<long long> ageOf(const std::string& minutes) {
    const auto age = decimal(minutes);
    return age ? std::optional<long long>(*age) : std::nullopt;
}

std::optional<MapEntry> potaEntry(const FeedRow& spot) {
    const auto tuned = hertz(spot[1], kilohertz);
    if (!tuned) return std::nullopt;
    return MapEntry{.kind = EntryKind::pota,
                    .hertz = *tuned,
                    .name = field(spot, 0),
                    .detail = field(spot, 9),
                    .more = joined({field(spot, 4), field(spot, 8), field(spot, 3)}),
                    .mode = spotMode(field(spot, 2), *tuned),
                    .minutes = ageOf(field(spot, 5))};
}

std::optional<MapEntry> sotaEntry(const FeedRow& spot) {
    const auto tuned = hertz(spot[2], megahertz);
    if (!tuned) return std::nullopt;
    return MapEntry{.kind = EntryKind::sota,
                    .hertz = *tuned,
                    .name = field(spot, 0),
                    .detail = field(spot, 5),
                    .more = joined({field(spot, 6), field(spot, 7), field(spot, 8), field(spot, 4)}),
                    .mode = spotMode(field(spot, 3), *tuned),
                    .minutes = ageOf(field(spot, 9))};
}

std::optional<MapEntry> netLoggerEntry(const FeedRow& net) {
    const long long tuned = hertzForNetLogger(net[1]);
    if (tuned == 0) return std::nullopt;
    const std::string subscribers = field(net, 3);
    return MapEntry{.kind = EntryKind::netLogger,
                    .hertz = tuned,
                    .name = field(net, 0),
                    .detail = subscribers.empty() ? "" : subscribers + " subscribers",
                    .mode = std::string(tuned <= SideBands::lowestUpper ? "LSB" : "USB")};
}

std::optional<MapEntry> netEntry(const FeedRow& net, Instant now) {
    const auto tuned = hertz(net[1], megahertz);
    const auto minutes = minutesToNet(net[2], now);
    if (!tuned || !minutes) return std::nullopt;
    return MapEntry{.kind = EntryKind::net,
                    .hertz = *tuned,
                    .name = field(net, 0),
                    .detail = *minutes > 0 ? "in " + std::to_string(*minutes) + " minutes" : std::string("on now"),
                    .more = field(net, 2) + " UTC",
                    .mode = field(net, 3)};
}

std::optional<MapEntry> stationEntry(const FeedRow& station) {
    const auto tuned = hertz(station[1], kilohertz);
    if (!tuned) return std::nullopt;
    const std::string power = field(station, 3);
    return MapEntry{.kind = EntryKind::mediumWave,
                    .hertz = *tuned,
                    .name = field(station, 0),
                    .detail = field(station, 2),
                    .more = power.empty() ? "" : power + " kW",
                    .mode = "AM"};
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
    // The rows with as many fields as their Tune key needs.
    template <typename Make>
    void addList(const FeedList& list, std::size_t fields, Make make) {
        for (std::size_t row = 0; row < list.size(); ++row)
            if (list[row].fields.size() >= fields) add(make(list[row]), row);
    }

private:
    MapEntries& made_;
    const EntryFilter& keep_;
};

long long rank(const MapEntry& entry) { return entry.minutes.value_or(mapKind(entry.kind).agelessMinutes); }

}  // namespace

MapEntries mapEntries(const FeedState& lists, const MemoryTable& memories, const AutoMemoryState& autoMemories,
                      Instant now, const EntryFilter& keep) {
    MapEntries made;
    Sorter sorter(made, keep);
    sorter.addList(lists.vqPotaArray, 5, potaEntry);
    sorter.addList(lists.vqSotaArray, 7, sotaEntry);
    sorter.addList(lists.vqNetLoggerArray, 2, netLoggerEntry);
    sorter.addList(lists.vqNetsArray, 4, [now](const FeedRow& net) { return netEntry(net, now); });
    sorter.addList(lists.vqMWArray, 2, stationEntry);
    for (std::size_t row = 0; row < memories.size(); ++row) sorter.add(memoryEntry(row, memories[row]), row);
    for (std::size_t row = 0; row < autoMemories.vqAutoMemoryArray.size(); ++row)
        sorter.add(autoMemoryEntry(autoMemories, row), row);
    for (BandEntries& band : made.bands)
        std::ranges::stable_sort(band, [](const MapEntry& a, const MapEntry& b) {
            return a.hertz != b.hertz ? a.hertz < b.hertz : comesFirst(a, b);
        });
    return made;
}

bool comesFirst(const MapEntry& a, const MapEntry& b) { return a.watched != b.watched ? a.watched : rank(a) < rank(b); }

std::vector<const MapEntry*> newestOf(const BandEntries& entries, std::size_t most) {
    std::vector<const MapEntry*> newest;
    for (const MapEntry& entry : entries) newest.push_back(&entry);
    std::ranges::stable_sort(newest, [](const MapEntry* a, const MapEntry* b) { return comesFirst(*a, *b); });
    newest.resize(std::min(newest.size(), most));
    return newest;
}

}  // namespace corvane
