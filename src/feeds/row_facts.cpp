#include "feeds/row_facts.h"

#include <fmt/core.h>

#include <array>

#include "feeds/hertz.h"
#include "feeds/tune_command.h"
#include "wire/letter_case.h"
#include "wire/operating_modes.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr float kilohertz = 1'000.0F;
constexpr float megahertz = 1'000'000.0F;
constexpr float unitOfNetLogger = 0;
constexpr long long endOfMediumWave = 1'800'000;  // hertz
constexpr std::size_t none = std::size_t(-1);

// Where the facts of a list stand in its rows.
struct Places {
    Feed list;
    std::size_t fewest;  // fields of a row that can be tuned to
    std::size_t frequency;
    float unit;  // hertz
    std::size_t name;
    std::size_t reference = none;
    std::size_t mode = none;
    std::size_t comment = none;
    std::size_t place = none;
    std::size_t age = none;
};
constexpr std::array places{
    Places{Feed::pota, 5, 1, kilohertz, 0, 9, 2, 3, 4, 5}, Places{Feed::sota, 7, 2, megahertz, 0, 5, 3, 4, 6, 9},
    Places{Feed::netLogger, 2, 1, unitOfNetLogger, 0},     Places{Feed::nets, 4, 1, megahertz, 0, none, 3},
    Places{Feed::mediumWave, 2, 1, kilohertz, 0},
};

const Places* placesOf(Feed list) {
    for (const Places& each : places)
        if (each.list == list) return &each;
    return nullptr;
}

std::optional<long long> tunedHertz(const Places& at, const FeedRow& row) {
    if (at.unit != unitOfNetLogger) return hertz(row[at.frequency], at.unit);
    const long long tuned = hertzForNetLogger(row[at.frequency]);
    return tuned == 0 ? std::nullopt : std::optional(tuned);
}

std::string modeOf(const Places& at, const FeedRow& row, long long hertz) {
    if (at.list == Feed::netLogger) return hertz <= SideBands::lowestUpper ? "LSB" : "USB";
    return at.list == Feed::mediumWave ? "AM" : fieldOf(row, at.mode);
}

}  // namespace

std::string fieldOf(const FeedRow& row, std::size_t position) {
    return position < row.fields.size() ? std::string(trimmed(row[position])) : std::string();
}

std::optional<RowFacts> rowFacts(Feed list, const FeedRow& row) {
    const Places* at = placesOf(list);
    if (!at || row.fields.size() < at->fewest) return std::nullopt;
    const auto tuned = tunedHertz(*at, row);
    if (!tuned) return std::nullopt;
    const auto age = decimal(fieldOf(row, at->age));
    return RowFacts{*tuned,
                    fieldOf(row, at->name),
                    fieldOf(row, at->reference),
                    modeOf(*at, row, *tuned),
                    fieldOf(row, at->comment),
                    fieldOf(row, at->place),
                    age ? std::optional<long long>(*age) : std::nullopt};
}

bool saysQrt(std::string_view comment) { return upperCase(comment).find("QRT") != std::string::npos; }

bool saysQrt(Feed list, const FeedRow& row) {
    return list == Feed::sota && saysQrt(fieldOf(row, placesOf(list)->comment));
}

std::string frequencyText(long long hertz) {
    if (hertz < endOfMediumWave) return fmt::format("{} kHz", static_cast<double>(hertz) / 1e3);
    std::string digits = fmt::format("{}.{:06}", hertz / 1'000'000, hertz % 1'000'000);
    while (digits.ends_with('0') && digits.size() - digits.find('.') > 4) digits.pop_back();
    return digits + " MHz";
}

}  // namespace corvane
