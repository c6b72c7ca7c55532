#include "feeds/feed_cells.h"

#include <fmt/compile.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "feeds/row_facts.h"
#include "platform/web_address.h"
#include "wire/decimal_number.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

// Formats are compiled: a filter asks for the texts of ten thousand rows while the operator types.
using Show = std::string (*)(std::string_view field);

// The address behind a cell, which may be any text; empty for none.
using Link = std::string (*)(const FeedRow& row, const ServiceHosts& hosts);

struct CellRow {
    Feed feed;
    std::string_view column;
    std::size_t position;
    Show show;
    Link link = nullptr;
};

constexpr double mostShown = 1e12;

double shownNumber(std::string_view field) {
    const double number = numberOrZero(field);
    return std::abs(number) < mostShown ? number : 0;
}

std::string asIs(std::string_view field) { return std::string(field); }
std::string kilohertz(std::string_view field) { return withDecimals(shownNumber(field), 1); }
std::string megahertzInKilohertz(std::string_view field) { return withDecimals(shownNumber(field) * 1000, 1); }
std::string minutes(std::string_view field) {
    return field.empty() ? std::string() : fmt::format(FMT_COMPILE("{} min"), field);
}
std::string kilowatts(std::string_view field) { return fmt::format(FMT_COMPILE("{} kW"), field); }

template <char const* unknown>
std::string dashFor(std::string_view field) {
    return std::string(field == unknown ? "--" : field);
}
constexpr char unknownActivator[] = "Not recognised";
constexpr char unknownSummit[] = "Summit not recognised";

// Megahertz or, above 70, kilohertz; shown in kilohertz with one decimal: "14.25" gives "14250.0".
std::string eitherInKilohertz(std::string_view field) {
    if (!decimalNumber<float>(field)) return {};
    const double value = shownNumber(field);
    std::string digits = withDecimals(value > 70 ? value / 1000 : value, 4);
    std::erase(digits, '.');
    return digits.insert(digits.size() - 1, ".");
}

std::string field(const FeedRow& row, std::size_t position) {
    return position < row.fields.size() ? row[position] : std::string();
}

std::string spotOnMap(const FeedRow& spot, const ServiceHosts& hosts) {
    return fmt::format(FMT_COMPILE("{0}/?q={1},{2}&ll={1},{2}&z=5"), hosts.map, field(spot, 6), field(spot, 7));
}
std::string parkPage(const FeedRow& spot, const ServiceHosts& hosts) {
    return fmt::format(FMT_COMPILE("{}/#/park/{}"), hosts.potaSite, field(spot, 9));
}
std::string ownPage(const FeedRow& row, const ServiceHosts&) { return field(row, 4); }

constexpr std::array cells{
    CellRow{Feed::pota, "activator", 0, asIs},
    CellRow{Feed::pota, "frequency", 1, kilohertz},
    CellRow{Feed::pota, "mode", 2, asIs},
    CellRow{Feed::pota, "comment", 3, asIs},
    CellRow{Feed::pota, "name", 4, asIs, spotOnMap},
    CellRow{Feed::pota, "last", 5, minutes},
    CellRow{Feed::pota, "location", 8, asIs},
    CellRow{Feed::pota, "reference", 9, asIs, parkPage},
    CellRow{Feed::sota, "activator2", 0, asIs},
    CellRow{Feed::sota, "activatorName", 1, dashFor<unknownActivator>},
    CellRow{Feed::sota, "frequency2", 2, megahertzInKilohertz},
    CellRow{Feed::sota, "mode2", 3, asIs},
    CellRow{Feed::sota, "comment2", 4, asIs},
    CellRow{Feed::sota, "name2", 6, dashFor<unknownSummit>},
    CellRow{Feed::sota, "location2", 7, asIs},
    CellRow{Feed::sota, "reference2", 8, asIs},
    CellRow{Feed::sota, "last2", 9, minutes},
    CellRow{Feed::netLogger, "netName", 0, asIs},
    CellRow{Feed::netLogger, "freq", 1, eitherInKilohertz},
    CellRow{Feed::netLogger, "mode2", 2, asIs},
    CellRow{Feed::netLogger, "checkIns", 3, asIs},
    CellRow{Feed::nets, "netName", 0, asIs, ownPage},
    CellRow{Feed::nets, "freq", 1, asIs},
    CellRow{Feed::nets, "utc", 2, asIs},
    CellRow{Feed::nets, "mode", 3, asIs},
    CellRow{Feed::nets, "confirmed", 5, asIs},
    CellRow{Feed::mediumWave, "station", 0, asIs, ownPage},
    CellRow{Feed::mediumWave, "freq", 1, asIs},
    CellRow{Feed::mediumWave, "city", 2, asIs},
    CellRow{Feed::mediumWave, "power", 3, kilowatts},
};

const CellRow* cellRow(Feed feed, std::string_view column, const FeedRow& row) {
    const auto cell =
        std::ranges::find_if(cells, [&](const CellRow& each) { return each.feed == feed && each.column == column; });
    return cell == cells.end() || cell->position >= row.fields.size() ? nullptr : &*cell;
}

std::string shownText(const CellRow& cell, const FeedRow& row, long long minutesSince) {
    const std::string& field = row[cell.position];
    return cell.show == minutes ? minutes(laterAge(field, minutesSince)) : cell.show(field);
}

}  // namespace

std::string laterAge(const std::string& minutes, long long minutesSince) {
    const auto age = decimal(minutes);
    return age ? std::to_string(*age + minutesSince) : minutes;
}

std::string feedCell(Feed feed, std::string_view column, const FeedRow& row, long long minutesSince) {
    const CellRow* cell = cellRow(feed, column, row);
    return cell ? shownText(*cell, row, minutesSince) : std::string();
}

TableCell feedTableCell(Feed feed, std::string_view column, const FeedRow& row, const ServiceHosts& hosts,
                        long long minutesSince) {
    const CellRow* cell = cellRow(feed, column, row);
    if (!cell) return {};
    const std::string built = cell->link && !row[cell->position].empty() ? cell->link(row, hosts) : std::string();
    const std::string_view address = webAddress(built);
    std::string text = shownText(*cell, row, minutesSince);
    if (address.empty()) return TextCell{std::move(text), saysQrt(feed, row)};
    return LinkCell{std::move(text), std::string(address)};
}

}  // namespace corvane
