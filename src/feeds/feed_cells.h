// What the tables of the on-line lists show in a cell. The columns are those of display/table_columns.h.
#pragma once

#include <string>
#include <string_view>

#include "app/service_hosts.h"
#include "feeds/feed_row.h"

namespace corvane {

enum class FeedTable { pota, sota, netLogger, nets, mediumWave };

// The text of a column by its identifier; a row that is too short shows nothing.
std::string feedCell(FeedTable table, std::string_view column, const FeedRow& row);

// Where that text leads when it is a link: a park's reference to "https://pota.app/#/park/US-0001", its name to the
// map, a net or a station to the page that the list names. Empty for what is no link.
std::string feedLink(FeedTable table, std::string_view column, const FeedRow& row, const ServiceHosts& hosts);

}  // namespace corvane
