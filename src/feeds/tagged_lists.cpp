#include "feeds/tagged_lists.h"

#include <algorithm>
#include <array>

#include "feeds/scrape_tags.h"
#include "wire/utf8.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr std::array<std::string_view, 4> netLoggerTags{"NetName", "Frequency", "Mode", "SubscriberCount"};
constexpr std::array<std::string_view, 7> netsTags{"NetName", "Frequency", "UTC", "Mode", "URL", "Confirmed", "NetID"};
constexpr std::array<std::string_view, 5> stationTags{"Station", "Frequency", "City", "Power", "URL"};

constexpr std::size_t netLoggerMode = 2;
constexpr std::size_t netLoggerCount = 3;
constexpr int unknownCount = 99'999'999;

DecodedFeed decodeTagged(std::string_view body, std::span<const std::string_view> tags) {
    if (!isUtf8(body)) return {{}, "unreadable: not text"};
    DecodedFeed decoded{rowsOf(scrapeTags(body, tags)), {}};
    const auto address = static_cast<std::size_t>(std::ranges::find(tags, "URL") - tags.begin());
    for (FeedRow& row : decoded.rows) row = withinLimits(std::move(row), address);
    return decoded;
}

}  // namespace

DecodedFeed decodeNetLoggerNets(std::string_view body) {
    DecodedFeed decoded = decodeTagged(body, netLoggerTags);
    std::erase_if(decoded.rows, [](const FeedRow& row) { return row[netLoggerMode] != "SSB"; });
    std::ranges::stable_sort(decoded.rows, std::ranges::greater{},
                             [](const FeedRow& row) { return decimal(row[netLoggerCount]).value_or(unknownCount); });
    return decoded;
}

DecodedFeed decodeNets(std::string_view body) { return decodeTagged(body, netsTags); }

DecodedFeed decodeMWStations(std::string_view body) { return decodeTagged(body, stationTags); }

}  // namespace corvane
