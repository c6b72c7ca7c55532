// The lists that come as lines with tags.
#pragma once

#include <string_view>

#include "feeds/feed_row.h"

namespace corvane {

// The SSB nets that are active on NetLogger, most subscribers first. Row: name, frequency (MHz or kHz, digits and
// points), mode, subscribers. A net whose count is not a number comes first.
DecodedFeed decodeNetLoggerNets(std::string_view body);

// The directory of nets in its own order. Row: name, frequency (MHz, digits and points), UTC, mode, web page,
// confirmed, net's number.
DecodedFeed decodeNets(std::string_view body);

// Medium-wave stations in the order of the list. Row: station, frequency (kHz, digits and points), city, power (kW),
// web page.
DecodedFeed decodeMWStations(std::string_view body);

}  // namespace corvane
