// Where each operator class may transmit, segment by segment.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include "display/control.h"

namespace corvane {

// The classes from the one with the fewest rights up, by the first word of the titles of operatorClasses.
inline constexpr std::array<std::string_view, 4> licenceClasses{"Technician", "General", "Advanced", "Extra"};
inline constexpr std::size_t classNotSet = licenceClasses.size();

// The class of this name; classNotSet for any other text.
std::size_t licenceClass(std::string_view name);

struct ClassSegment {
    long long lower;          // hertz, included
    long long upper;          // hertz, excluded
    std::size_t lowestClass;  // of licenceClasses: it and those above may transmit here
    bool onlyCw;
    Color color;

    // "G", "E cw".
    std::string_view letters() const;
};

// All segments of operatorClasses, from the lowest up.
const std::vector<ClassSegment>& classSegments();

// Whether an operator of this class may transmit there; everyone while the class is not set.
constexpr bool mayUse(const ClassSegment& segment, std::size_t ownClass) {
    return ownClass == classNotSet || ownClass >= segment.lowestClass;
}

// Whether the frequency, in hertz, is in a segment that the class may use: 14'010'000 is for an Extra, not for a
// General. The mode does not count: data modes share the segments for CW, and often go by the name of a side band.
bool mayTransmit(long long hertz, std::size_t ownClass);

}  // namespace corvane
