// The on-line lists: where each comes from, how it is decoded and where it is shown. One row per list.
#pragma once

#include <array>
#include <chrono>
#include <string_view>

#include "app/service_hosts.h"
#include "display/display.h"
#include "display/feed.h"
#include "feeds/feed_state.h"
#include "feeds/spots.h"
#include "feeds/tagged_lists.h"

namespace corvane {

struct ListFeed {
    Feed feed;
    std::string ServiceHosts::*host;
    std::string_view path;
    bool ignoreCaches;
    DecodedFeed (*decode)(std::string_view body, Instant now);
    FeedList FeedState::*list;
    TableView Display::*table;
    TextField Display::*status;
    std::string_view noun;  // what the rows are called, in the plural: "spots"
    std::string_view tuneColumn;
    int page;                            // of the lists page
    bool hasSpots;                       // whose ages count up
    std::chrono::minutes leastInterval;  // between two refreshes that nobody has asked for
};

// In the order in which they are fetched at the start.
inline constexpr std::array listFeeds{
    ListFeed{Feed::pota, &ServiceHosts::pota, "/spot/activator", false, decodePotaSpots, &FeedState::vqPotaArray,
             &Display::potaTable, &Display::potaStatusField, "spots", "tune", 0, true, std::chrono::minutes(1)},
    ListFeed{Feed::netLogger, &ServiceHosts::netLogger, "/api/GetActiveNets.php", false,
             [](std::string_view body, Instant) { return decodeNetLoggerNets(body); }, &FeedState::vqNetLoggerArray,
             &Display::netLoggerTable, &Display::netLoggerStatusField, "nets", "tune", 2, false,
             std::chrono::minutes(1)},
    ListFeed{Feed::sota, &ServiceHosts::sota, "/api/spots/-3/all", false, decodeSotaSpots, &FeedState::vqSotaArray,
             &Display::sotaTable, &Display::sotaStatusField, "spots", "tune2", 1, true, std::chrono::minutes(1)},
    ListFeed{Feed::nets, &ServiceHosts::directory, "/nets.php", true,
             [](std::string_view body, Instant) { return decodeNets(body); }, &FeedState::vqNetsArray,
             &Display::netsTable, &Display::netsStatusField, "nets", "tune3", 3, false, std::chrono::minutes(5)},
    ListFeed{Feed::mediumWave, &ServiceHosts::directory, "/mw.php", true,
             [](std::string_view body, Instant) { return decodeMWStations(body); }, &FeedState::vqMWArray,
             &Display::mwTable, &Display::mwStatusField, "stations", "tune3", 4, false, std::chrono::minutes(60)},
};

constexpr const ListFeed& listFeed(Feed feed) {
    for (const ListFeed& row : listFeeds)
        if (row.feed == feed) return row;
    return listFeeds.front();
}

// The list that a table shows, or nullptr.
inline const ListFeed* feedOf(const Display& display, const TableView& table) {
    for (const ListFeed& row : listFeeds)
        if (&(display.*row.table) == &table) return &row;
    return nullptr;
}

}  // namespace corvane
