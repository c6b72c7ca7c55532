#include "feeds/feed_cells.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "feeds/single_precision.h"
#include "radio/utf8.h"

namespace corvane {

namespace {

using Show = std::string (*)(const std::string& field);

struct CellRow {
    FeedTable table;
    std::string_view column;
    std::size_t position;
    Show show;
};

constexpr std::size_t longestCell = 200;  // characters
constexpr double mostShown = 1e12;

double numberOrZero(std::string_view text) {
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool readable = error == std::errc{} && end == text.data() + text.size();
    return readable && std::abs(number) < mostShown ? number : 0;
}

std::string decimals(double number, int count) {
    std::array<char, 400> text{};
    const auto [end, error] =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed, count);
    return {text.data(), error == std::errc{} ? end : text.data()};
}

std::string asIs(const std::string& field) { return field; }
std::string kilohertz(const std::string& field) { return decimals(numberOrZero(field), 1); }
std::string megahertzInKilohertz(const std::string& field) { return decimals(numberOrZero(field) * 1000, 1); }
std::string minutes(const std::string& field) { return field.empty() ? field : field + " min"; }
std::string kilowatts(const std::string& field) { return field + " kW"; }

template <char const* unknown>
std::string dashFor(const std::string& field) {
    return field == unknown ? "--" : field;
}
constexpr char unknownActivator[] = "Not recognised";
constexpr char unknownSummit[] = "Summit not recognised";

// Megahertz or, above 70, kilohertz; shown in kilohertz with one decimal: "14.25" gives "14250.0".
std::string eitherInKilohertz(const std::string& field) {
    const auto number = singlePrecision(field);
    if (!number) return {};
    const double value = numberOrZero(field);
    std::string digits = decimals(value > 70 ? value / 1000 : value, 4);
    std::erase(digits, '.');
    return digits.insert(digits.size() - 1, ".");
}

constexpr std::array cells{
    CellRow{FeedTable::pota, "activator", 0, asIs},
    CellRow{FeedTable::pota, "frequency", 1, kilohertz},
    CellRow{FeedTable::pota, "mode", 2, asIs},
    CellRow{FeedTable::pota, "comment", 3, asIs},
    CellRow{FeedTable::pota, "name", 4, asIs},
    CellRow{FeedTable::pota, "last", 5, minutes},
    CellRow{FeedTable::pota, "location", 8, asIs},
    CellRow{FeedTable::pota, "reference", 9, asIs},
    CellRow{FeedTable::sota, "activator2", 0, asIs},
    CellRow{FeedTable::sota, "activatorName", 1, dashFor<unknownActivator>},
    CellRow{FeedTable::sota, "frequency2", 2, megahertzInKilohertz},
    CellRow{FeedTable::sota, "mode2", 3, asIs},
    CellRow{FeedTable::sota, "comment2", 4, asIs},
    CellRow{FeedTable::sota, "name2", 6, dashFor<unknownSummit>},
    CellRow{FeedTable::sota, "location2", 7, asIs},
    CellRow{FeedTable::sota, "reference2", 8, asIs},
    CellRow{FeedTable::sota, "last2", 9, minutes},
    CellRow{FeedTable::netLogger, "netName", 0, asIs},
    CellRow{FeedTable::netLogger, "freq", 1, eitherInKilohertz},
    CellRow{FeedTable::netLogger, "mode2", 2, asIs},
    CellRow{FeedTable::netLogger, "checkIns", 3, asIs},
    CellRow{FeedTable::nets, "netName", 0, asIs},
    CellRow{FeedTable::nets, "freq", 1, asIs},
    CellRow{FeedTable::nets, "utc", 2, asIs},
    CellRow{FeedTable::nets, "mode", 3, asIs},
    CellRow{FeedTable::nets, "confirmed", 5, asIs},
    CellRow{FeedTable::mediumWave, "station", 0, asIs},
    CellRow{FeedTable::mediumWave, "freq", 1, asIs},
    CellRow{FeedTable::mediumWave, "city", 2, asIs},
    CellRow{FeedTable::mediumWave, "power", 3, kilowatts},
};

}  // namespace

std::string feedCell(FeedTable table, std::string_view column, const FeedRow& row) {
    const auto cell =
        std::ranges::find_if(cells, [&](const CellRow& each) { return each.table == table && each.column == column; });
    if (cell == cells.end() || cell->position >= row.fields.size()) return {};
    return cell->show(std::string(utf8Prefix(row[cell->position], longestCell)));
}

}  // namespace corvane
