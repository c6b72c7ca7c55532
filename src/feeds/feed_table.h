// The on-line lists: where each comes from, how it is read and where it is shown. One row per list.
#pragma once

#include <array>
#include <string_view>

#include "app/service_hosts.h"
#include "display/display.h"
#include "feeds/feed_cells.h"
#include "feeds/feed_state.h"
#include "feeds/spots.h"
#include "feeds/tagged_lists.h"

namespace corvane {

enum class Feed : int { pota, netLogger, sota, nets, mediumWave, bandConditions };
inline constexpr std::size_t feedCount = 6;

struct ListFeed {
    Feed feed;
    std::string ServiceHosts::*host;
    std::string_view path;
    bool ignoreCaches;
    DecodedFeed (*decode)(std::string_view body, Instant now);
    FeedList FeedState::*list;
    TableView Display::*table;
    TextField Display::*status;
    std::string_view noun;  // what the rows are: "spots", of which one is a "spot"
    FeedTable cells;
};

// In the order in which they are fetched at the start.
inline constexpr std::array listFeeds{
    ListFeed{Feed::pota, &ServiceHosts::pota, "/spot/activator", false, decodePotaSpots, &FeedState::vqPotaArray,
             &Display::potaTable, &Display::potaStatusField, "spots", FeedTable::pota},
    ListFeed{Feed::netLogger, &ServiceHosts::netLogger, "/api/GetActiveNets.php", false,
             [](std::string_view body, Instant) { return decodeNetLoggerNets(body); }, &FeedState::vqNetLoggerArray,
             &Display::netLoggerTable, &Display::netLoggerStatusField, "nets", FeedTable::netLogger},
    ListFeed{Feed::sota, &ServiceHosts::sota, "/api/spots/-3/all", false, decodeSotaSpots, &FeedState::vqSotaArray,
             &Display::sotaTable, &Display::sotaStatusField, "spots", FeedTable::sota},
    ListFeed{Feed::nets, &ServiceHosts::directory, "/nets.php", true,
             [](std::string_view body, Instant) { return decodeNets(body); }, &FeedState::vqNetsArray,
             &Display::netsTable, &Display::netsStatusField, "nets", FeedTable::nets},
    ListFeed{Feed::mediumWave, &ServiceHosts::directory, "/mw.php", true,
             [](std::string_view body, Instant) { return decodeMWStations(body); }, &FeedState::vqMWArray,
             &Display::mwTable, &Display::mwStatusField, "stations", FeedTable::mediumWave},
};

inline constexpr std::string_view bandConditionsPath = "/solarxml.php";

constexpr const ListFeed& listFeed(Feed feed) {
    for (const ListFeed& row : listFeeds)
        if (row.feed == feed) return row;
    return listFeeds.front();
}

}  // namespace corvane
