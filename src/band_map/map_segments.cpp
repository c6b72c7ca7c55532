#include "band_map/map_segments.h"

#include <algorithm>
#include <iterator>

#include "band_map/map_bands.h"

namespace corvane {

std::vector<ClassSegment> segmentsOf(std::size_t band) {
    const Band& limits = limitsOf(band);
    std::vector<ClassSegment> segments;
    std::ranges::copy_if(classSegments(), std::back_inserter(segments), [&limits](const ClassSegment& segment) {
        return segment.upper > limits.lowerBound && segment.lower < limits.upperBound;
    });
    return segments;
}

}  // namespace corvane
