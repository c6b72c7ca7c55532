// What the tables of the on-line lists show in a cell. The columns are those of display/table_columns.h.
#pragma once

#include <string>
#include <string_view>

#include "app/service_hosts.h"
#include "display/feed.h"
#include "display/table_cell.h"
#include "feeds/feed_row.h"

namespace corvane {

// The text for a column, given its identifier; a row that is too short shows nothing. Ages grow with the minutes since
// the row came.
std::string feedCell(Feed feed, std::string_view column, const FeedRow& row, long long minutesSince = 0);

// The same as a cell, with a link where there is one. A park's reference links to "https://pota.app/#/park/US-0001",
// its name to the map, a net or a station to the web page that the list gives for it. What is no webAddress is no link.
// A station that says that it has closed is quiet.
TableCell feedTableCell(Feed feed, std::string_view column, const FeedRow& row, const ServiceHosts& hosts,
                        long long minutesSince = 0);

// An age of so many minutes, as text, so many minutes later: "5", 2 gives "7". What is no number stays.
std::string laterAge(const std::string& minutes, long long minutesSince);

}  // namespace corvane
