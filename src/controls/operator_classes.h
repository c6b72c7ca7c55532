// The amateur operator class that may transmit on a frequency.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "display/control.h"

namespace corvane {

struct OperatorClass {
    float lower;  // MHz, included
    float upper;  // MHz, excluded
    std::string_view title;
    Color color;
};

inline constexpr std::array operatorClasses{
    OperatorClass{50.1F, 54.0F, "Technician", Color::green},
    OperatorClass{50.0F, 50.1F, "Technician CW", Color::green},
    OperatorClass{28.5F, 29.7F, "General", Color::blue},
    OperatorClass{28.3F, 28.5F, "Technician", Color::green},
    OperatorClass{28.0F, 28.3F, "Technician CW", Color::green},
    OperatorClass{24.93F, 24.99F, "General", Color::blue},
    OperatorClass{24.89F, 24.93F, "General CW", Color::blue},
    OperatorClass{21.275F, 21.45F, "General", Color::blue},
    OperatorClass{21.225F, 21.275F, "Advanced", Color::purple},
    OperatorClass{21.2F, 21.225F, "Extra", Color::pink},
    OperatorClass{21.025F, 21.2F, "Technician CW", Color::green},
    OperatorClass{21.0F, 21.025F, "Extra CW", Color::pink},
    OperatorClass{18.11F, 18.168F, "General", Color::blue},
    OperatorClass{18.068F, 18.11F, "General CW", Color::blue},
    OperatorClass{14.225F, 14.35F, "General", Color::blue},
    OperatorClass{14.175F, 14.225F, "Advanced", Color::purple},
    OperatorClass{14.15F, 14.175F, "Extra", Color::pink},
    OperatorClass{14.025F, 14.15F, "General CW", Color::blue},
    OperatorClass{14.0F, 14.025F, "Extra CW", Color::pink},
    OperatorClass{10.1F, 10.15F, "General", Color::blue},
    OperatorClass{7.175F, 7.3F, "General", Color::blue},
    OperatorClass{7.125F, 7.175F, "Advanced", Color::purple},
    OperatorClass{7.025F, 7.125F, "Technician CW", Color::green},
    OperatorClass{7.0F, 7.025F, "Extra CW", Color::pink},
    OperatorClass{5.3305F, 5.4035F, "General", Color::blue},
    OperatorClass{3.8F, 4.0F, "General", Color::blue},
    OperatorClass{3.7F, 3.8F, "Advanced", Color::purple},
    OperatorClass{3.6F, 3.7F, "Extra", Color::pink},
    OperatorClass{3.525F, 3.6F, "Technician CW", Color::green},
    OperatorClass{3.5F, 3.525F, "Extra CW", Color::pink},
    OperatorClass{1.8F, 2.0F, "General", Color::blue},
};
inline constexpr OperatorClass outOfBand{0.0F, 0.0F, "Out of Band", Color::brown};

static_assert(std::ranges::all_of(operatorClasses, [](const OperatorClass& row) { return row.lower < row.upper; }));
static_assert(std::ranges::adjacent_find(operatorClasses,
                                         [](const OperatorClass& above, const OperatorClass& below) {
                                             return below.upper > above.lower;
                                         }) == operatorClasses.end(),
              "from the highest range down, none overlapping");

// The class for a frequency in MHz: 14.025 gives "General CW", 14.35 gives "Out of Band".
constexpr const OperatorClass& operatorClass(float megahertz) {
    const auto row = std::ranges::find_if(
        operatorClasses, [megahertz](const OperatorClass& c) { return c.lower <= megahertz && megahertz < c.upper; });
    return row == operatorClasses.end() ? outOfBand : *row;
}

}  // namespace corvane
