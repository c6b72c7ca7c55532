// Which parts of a band of the map each operator class may use.
#pragma once

#include <cstddef>
#include <vector>

#include "controls/class_segments.h"

namespace corvane {

// The segments of a row of mapBands from the lowest up; none on medium wave.
std::vector<ClassSegment> segmentsOf(std::size_t band);

}  // namespace corvane
