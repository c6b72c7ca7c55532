#include "feeds/feed_cells.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "feeds/single_precision.h"
#include "radio/decimal_number.h"
#include "radio/utf8.h"

namespace corvane {

namespace {

using Show = std::string (*)(const std::string& field);

// The web address behind a cell; empty for none.
using Link = std::string (*)(const FeedRow& row, const ServiceHosts& hosts);

struct CellRow {
    FeedTable table;
    std::string_view column;
    std::size_t position;
    Show show;
    Link link = nullptr;
};

constexpr std::size_t longestCell = 200;  // characters
constexpr double mostShown = 1e12;

double shownNumber(const std::string& field) {
    const double number = numberOrZero(field);
    return std::abs(number) < mostShown ? number : 0;
}

std::string asIs(const std::string& field) { return field; }
std::string kilohertz(const std::string& field) { return withDecimals(shownNumber(field), 1); }
std::string megahertzInKilohertz(const std::string& field) { return withDecimals(shownNumber(field) * 1000, 1); }
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
    const double value = shownNumber(field);
    std::string digits = withDecimals(value > 70 ? value / 1000 : value, 4);
    std::erase(digits, '.');
    return digits.insert(digits.size() - 1, ".");
}

std::string field(const FeedRow& row, std::size_t position) {
    return position < row.fields.size() ? row[position] : std::string();
}

std::string spotOnMap(const FeedRow& spot, const ServiceHosts& hosts) {
    const std::string place = field(spot, 6) + ',' + field(spot, 7);
    return hosts.map + "/?q=" + place + "&ll=" + place + "&z=5";
}
std::string parkPage(const FeedRow& spot, const ServiceHosts& hosts) {
    return hosts.potaSite + "/#/park/" + field(spot, 9);
}
std::string ownPage(const FeedRow& row, const ServiceHosts&) { return field(row, 4); }

constexpr std::array cells{
    CellRow{FeedTable::pota, "activator", 0, asIs},
    CellRow{FeedTable::pota, "frequency", 1, kilohertz},
    CellRow{FeedTable::pota, "mode", 2, asIs},
    CellRow{FeedTable::pota, "comment", 3, asIs},
    CellRow{FeedTable::pota, "name", 4, asIs, spotOnMap},
    CellRow{FeedTable::pota, "last", 5, minutes},
    CellRow{FeedTable::pota, "location", 8, asIs},
    CellRow{FeedTable::pota, "reference", 9, asIs, parkPage},
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
    CellRow{FeedTable::nets, "netName", 0, asIs, ownPage},
    CellRow{FeedTable::nets, "freq", 1, asIs},
    CellRow{FeedTable::nets, "utc", 2, asIs},
    CellRow{FeedTable::nets, "mode", 3, asIs},
    CellRow{FeedTable::nets, "confirmed", 5, asIs},
    CellRow{FeedTable::mediumWave, "station", 0, asIs, ownPage},
    CellRow{FeedTable::mediumWave, "freq", 1, asIs},
    CellRow{FeedTable::mediumWave, "city", 2, asIs},
    CellRow{FeedTable::mediumWave, "power", 3, kilowatts},
};

const CellRow* cellRow(FeedTable table, std::string_view column, const FeedRow& row) {
    const auto cell =
        std::ranges::find_if(cells, [&](const CellRow& each) { return each.table == table && each.column == column; });
    return cell == cells.end() || cell->position >= row.fields.size() ? nullptr : &*cell;
}

}  // namespace

std::string feedCell(FeedTable table, std::string_view column, const FeedRow& row) {
    const CellRow* cell = cellRow(table, column, row);
    return cell ? cell->show(std::string(utf8Prefix(row[cell->position], longestCell))) : std::string();
}

std::string feedLink(FeedTable table, std::string_view column, const FeedRow& row, const ServiceHosts& hosts) {
    const CellRow* cell = cellRow(table, column, row);
    return cell && cell->link && !row[cell->position].empty() ? cell->link(row, hosts) : std::string();
}

}  // namespace corvane
