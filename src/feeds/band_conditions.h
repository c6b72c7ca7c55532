// Propagation on the bands, from the lines of a solar-data feed.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace corvane {

struct BandConditions {
    std::string heading;
    std::string solarFlux;
    std::array<std::string, 8> bands;  // by day 80-40, 30-20, 17-15, 12-10 m, then the same by night: "Good"
    std::string magicBand;             // "Band Closed"
    std::string signalNoise;           // "S1-S2"

    bool operator==(const BandConditions&) const = default;
};

// The values by the number of their line; lines end with "\r\n". Each is what stands after the first ">" of its line up
// to the next tag. Values of lines that are not there stay empty.
BandConditions decodeBandConditions(std::string_view body);

}  // namespace corvane
