// Which parts of a band each operator class may use.
#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "band_map/map_bands.h"
#include "display/control.h"

namespace corvane {

// The classes from the one with the fewest rights up, by the first word of the titles of operatorClasses.
inline constexpr std::array<std::string_view, 4> licenceClasses{"Technician", "General", "Advanced", "Extra"};
inline constexpr std::size_t classNotSet = licenceClasses.size();

struct ClassSegment {
    long long lower;          // hertz
    long long upper;          // hertz
    std::size_t lowestClass;  // of licenceClasses: it and those above may transmit here
    bool onlyCw;
    Color color;

    // "G", "E cw".
    std::string_view letters() const;
};

// The segments of a row of mapBands from the lowest up; none on medium wave.
std::vector<ClassSegment> segmentsOf(std::size_t band);

// Whether an operator of this class may transmit there; everyone while the class is not set.
constexpr bool mayUse(const ClassSegment& segment, std::size_t ownClass) {
    return ownClass == classNotSet || ownClass >= segment.lowestClass;
}

}  // namespace corvane
