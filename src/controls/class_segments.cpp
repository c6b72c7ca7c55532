#include "controls/class_segments.h"

#include <algorithm>
#include <cmath>

#include "controls/operator_classes.h"

namespace corvane {

namespace {

constexpr std::string_view cwSuffix = " CW";
constexpr std::array<std::string_view, 4> letters{"T", "G", "A", "E"};
constexpr std::array<std::string_view, 4> lettersOfCw{"T cw", "G cw", "A cw", "E cw"};

long long hertzOf(float megahertz) { return std::llround(static_cast<double>(megahertz) * 1e5) * 10; }

std::vector<ClassSegment> madeSegments() {
    std::vector<ClassSegment> segments;
    for (const OperatorClass& row : operatorClasses) {
        const bool onlyCw = row.title.ends_with(cwSuffix);
        const std::string_view name = row.title.substr(0, row.title.size() - (onlyCw ? cwSuffix.size() : 0));
        segments.push_back({hertzOf(row.lower), hertzOf(row.upper), licenceClass(name), onlyCw, row.color});
    }
    std::ranges::sort(segments, {}, &ClassSegment::lower);
    return segments;
}

}  // namespace

std::size_t licenceClass(std::string_view name) {
    return static_cast<std::size_t>(std::ranges::find(licenceClasses, name) - licenceClasses.begin());
}

std::string_view ClassSegment::letters() const {
    return onlyCw ? lettersOfCw[lowestClass] : corvane::letters[lowestClass];
}

const std::vector<ClassSegment>& classSegments() {
    static const std::vector<ClassSegment> segments = madeSegments();
    return segments;
}

bool mayTransmit(long long hertz, std::size_t ownClass) {
    const auto after = std::ranges::upper_bound(classSegments(), hertz, {}, &ClassSegment::lower);
    if (after == classSegments().begin()) return false;
    const ClassSegment& segment = *(after - 1);
    return hertz < segment.upper && mayUse(segment, ownClass);
}

}  // namespace corvane
