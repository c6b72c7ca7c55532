// Propagation on the bands, from the lines of a solar-data feed.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace corvane {

struct BandConditions {
    std::string heading;
    std::string solarFlux;
    std::array<std::string, 8> bands;  // 80-40, 30-20, 17-15, 12-10 m by day, then by night: "Good"
    std::string magicBand;             // "Band Closed"
    std::string signalNoise;           // "S1-S2"

    bool operator==(const BandConditions&) const = default;
};

// Finds each value by the number of its line; lines end with "\r\n". A value stands between the first ">" of its line
// and the next tag, and is cut to 40 characters. Values of missing lines stay empty.
BandConditions decodeBandConditions(std::string_view body);

}  // namespace corvane
