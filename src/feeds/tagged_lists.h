// The lists that come as lines with tags.
#pragma once

#include <string_view>

#include "feeds/feed_row.h"

namespace corvane {

// The SSB nets that are active on NetLogger, most subscribers first. Row: name, frequency (MHz or kHz, figures and
// points), mode, subscribers. A count that is no number stands before all others.
DecodedFeed decodeNetLoggerNets(std::string_view body);

// The directory of nets in its own order. Row: name, frequency (MHz, figures and points), UTC, mode, web page,
// confirmed, net's number.
DecodedFeed decodeNets(std::string_view body);

// Medium-wave stations in the order of the list. Row: station, frequency (kHz, figures and points), city, power (kW),
// web page.
DecodedFeed decodeMWStations(std::string_view body);

}  // namespace corvane
