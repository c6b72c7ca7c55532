#include "band_map/class_segments.h"

#include <algorithm>
#include <cmath>

#include "controls/operator_classes.h"

namespace corvane {

namespace {

constexpr std::string_view cwSuffix = " CW";
constexpr std::array<std::string_view, 4> letters{"T", "G", "A", "E"};
constexpr std::array<std::string_view, 4> lettersOfCw{"T cw", "G cw", "A cw", "E cw"};

long long hertzOf(float megahertz) { return std::llround(static_cast<double>(megahertz) * 1e5) * 10; }

}  // namespace

std::string_view ClassSegment::letters() const {
    return onlyCw ? lettersOfCw[lowestClass] : corvane::letters[lowestClass];
}

std::vector<ClassSegment> segmentsOf(std::size_t band) {
    const Band& limits = limitsOf(band);
    std::vector<ClassSegment> segments;
    for (const OperatorClass& row : operatorClasses) {
        const long long lower = hertzOf(row.lower), upper = hertzOf(row.upper);
        if (upper <= limits.lowerBound || lower >= limits.upperBound) continue;
        const bool onlyCw = row.title.ends_with(cwSuffix);
        const std::string_view name = row.title.substr(0, row.title.size() - (onlyCw ? cwSuffix.size() : 0));
        const auto found = std::ranges::find(licenceClasses, name);
        segments.push_back({lower, upper, static_cast<std::size_t>(found - licenceClasses.begin()), onlyCw, row.color});
    }
    std::ranges::sort(segments, {}, &ClassSegment::lower);
    return segments;
}

}  // namespace corvane
