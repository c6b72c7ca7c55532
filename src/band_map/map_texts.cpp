#include "band_map/map_texts.h"

#include <fmt/core.h>

#include <algorithm>

#include "controls/operator_classes.h"
#include "feeds/row_facts.h"
#include "wire/utf8.h"

namespace corvane {

namespace {

constexpr std::size_t longestLabel = 14;  // characters
constexpr std::size_t readOutEntries = 5;
constexpr long long endOfMediumWave = 1'800'000;  // hertz

std::string counted(std::size_t number, std::string_view noun) {
    return fmt::format("{} {}{}", number, noun, number == 1 ? "" : "s");
}

std::string entriesText(std::size_t number) { return fmt::format("{} {}", number, number == 1 ? "entry" : "entries"); }

void append(std::string& line, std::string_view text) {
    if (!text.empty()) line.append(line.empty() ? "" : ", ").append(text);
}

std::string_view classText(long long hertz) {
    return hertz < endOfMediumWave ? "" : operatorClass(static_cast<float>(static_cast<double>(hertz) / 1e6)).title;
}

std::string ageText(const MapEntry& entry) {
    if (!entry.minutes) return mapKind(entry.kind).isSpot ? "age unknown" : "";
    const long long minutes = *entry.minutes;
    return minutes <= 0 ? "just now" : counted(static_cast<std::size_t>(minutes), "minute") + " ago";
}

}  // namespace

std::string labelText(const MapEntry& entry) {
    const std::string_view name = entry.name;
    const std::string_view cut = utf8Prefix(name, longestLabel);
    const std::string label = cut.size() == name.size() ? entry.name : std::string(cut).append("\u2026");
    return entry.watched ? "\u2605 " + label : label;
}

std::string entryText(const MapEntry& entry) {
    std::string line = fmt::format("{} {}", mapKind(entry.kind).name, entry.name);
    append(line, entry.watched ? "watched" : "");
    append(line, entry.closed ? "QRT" : "");
    append(line, entry.detail);
    append(line, frequencyText(entry.hertz));
    append(line, entry.mode);
    append(line, ageText(entry));
    append(line, classText(entry.hertz));
    return line;
}

std::string entryLine(const MapEntry& entry) {
    std::string line = entryText(entry);
    append(line, entry.more);
    return line;
}

std::string placeText(long long hertz) {
    std::string line = frequencyText(hertz);
    append(line, classText(hertz));
    return line;
}

std::string countText(const BandEntries& entries) {
    std::size_t spots = 0;
    std::optional<long long> newest;
    for (const MapEntry& entry : entries) {
        if (!mapKind(entry.kind).isSpot) continue;
        ++spots;
        if (entry.minutes) newest = std::min(newest.value_or(*entry.minutes), *entry.minutes);
    }
    if (spots == 0) return entries.empty() ? "" : entriesText(entries.size());
    return counted(spots, "spot") + (newest ? fmt::format(", {} min", std::max(*newest, 0LL)) : "");
}

std::string bandText(std::size_t band, const BandEntries& entries) {
    return fmt::format("{}, {}", mapBands[band].spoken, entriesText(entries.size()));
}

std::string readOut(std::size_t band, const BandEntries& entries) {
    std::string text = bandText(band, entries) + '.';
    for (const MapEntry* entry : newestOf(entries, readOutEntries)) text += ' ' + entryText(*entry) + '.';
    return text;
}

}  // namespace corvane
