// The rows of the band map: the bands, and where the conditions on each are shown.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "display/display.h"
#include "interpret/band_table.h"

namespace corvane {

struct MapBand {
    int keyTag;               // of the band's key, by which bandTable has its limits: 20
    std::string_view name;    // "20 m"
    std::string_view spoken;  // "20 meters"
    TextField Display::*day;  // the conditions; nullptr where there are none
    TextField Display::*night;
    int tick;  // hertz between two marks of the scale
};

// From the top row to the bottom one. The solar feed knows pairs of bands, and 6 m by itself.
inline constexpr std::array mapBands{
    MapBand{160, "160 m", "160 meters", nullptr, nullptr, 20'000},
    MapBand{80, "80 m", "80 meters", &Display::day8040Field, &Display::night8040Field, 50'000},
    MapBand{60, "60 m", "60 meters", &Display::day8040Field, &Display::night8040Field, 10'000},
    MapBand{40, "40 m", "40 meters", &Display::day8040Field, &Display::night8040Field, 50'000},
    MapBand{30, "30 m", "30 meters", &Display::day3020Field, &Display::night3020Field, 10'000},
    MapBand{20, "20 m", "20 meters", &Display::day3020Field, &Display::night3020Field, 50'000},
    MapBand{17, "17 m", "17 meters", &Display::day1715Field, &Display::night1715Field, 20'000},
    MapBand{15, "15 m", "15 meters", &Display::day1715Field, &Display::night1715Field, 50'000},
    MapBand{12, "12 m", "12 meters", &Display::day1210Field, &Display::night1210Field, 20'000},
    MapBand{10, "10 m", "10 meters", &Display::day1210Field, &Display::night1210Field, 200'000},
    MapBand{6, "6 m", "6 meters", &Display::magicBandField, nullptr, 500'000},
    MapBand{162, "MW", "Medium wave", nullptr, nullptr, 100'000},
};
static_assert(mapBands.size() == bandTable.size());
static_assert(std::ranges::all_of(mapBands, [](const MapBand& row) {
    return std::ranges::count(bandTable, row.keyTag, &Band::keyTag) == 1;
}));

// The limits of a row of mapBands.
constexpr const Band& limitsOf(std::size_t band) {
    return *std::ranges::find(bandTable, mapBands[band].keyTag, &Band::keyTag);
}

// The row for a frequency in hertz, or nothing outside all bands: 14'250'000 gives 5.
constexpr std::optional<std::size_t> mapBandOf(long long hertz) {
    for (std::size_t band = 0; band < mapBands.size(); ++band)
        if (limitsOf(band).lowerBound <= hertz && hertz <= limitsOf(band).upperBound) return band;
    return std::nullopt;
}

}  // namespace corvane
