// Which band key a frequency belongs to.
#pragma once

#include <algorithm>
#include <array>

namespace corvane {

struct Band {
    int keyTag;      // tag of the band's key, e.g. 20
    int lowerBound;  // hertz, included
    int upperBound;  // hertz, included
};

inline constexpr std::array bandTable{
    Band{6, 50000000, 54000000},  Band{10, 28000000, 29700000}, Band{12, 24890000, 24990000},
    Band{15, 21000000, 21450000}, Band{17, 18068000, 18168000}, Band{20, 14000000, 14350000},
    Band{30, 10100000, 10150000}, Band{40, 7000000, 7300000},   Band{60, 5329000, 5404999},
    Band{80, 3500000, 4000000},   Band{160, 1800000, 2000000},  Band{162, 540000, 1700000},
};
inline constexpr int generalCoverageKeyTag = 161;

// The tag of the key for a frequency in hertz: 14250000 gives 20; a frequency outside all bands gives the key for
// general coverage.
constexpr int bandKeyTag(int frequency) {
    const auto band = std::ranges::find_if(
        bandTable, [frequency](const Band& b) { return b.lowerBound <= frequency && frequency <= b.upperBound; });
    return band == bandTable.end() ? generalCoverageKeyTag : band->keyTag;
}

}  // namespace corvane
