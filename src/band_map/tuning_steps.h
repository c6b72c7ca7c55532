// How finely a place on the map is tuned to, in the modes' usual steps.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "wire/operating_modes.h"

namespace corvane {

struct TuningStep {
    std::string_view mode;
    int hertz;
};

inline constexpr std::array tuningSteps{
    TuningStep{"LSB", 500},    TuningStep{"USB", 500},      TuningStep{"CW-U", 100},       TuningStep{"FM", 5000},
    TuningStep{"AM", 1000},    TuningStep{"RTTY-L", 100},   TuningStep{"CW-L", 100},       TuningStep{"DATA-L", 500},
    TuningStep{"RTTY-U", 100}, TuningStep{"DATA-FM", 5000}, TuningStep{"FM-N", 5000},      TuningStep{"DATA-U", 500},
    TuningStep{"AM-N", 1000},  TuningStep{"PSK", 100},      TuningStep{"DATA-FM-N", 5000},
};
static_assert(std::ranges::equal(tuningSteps, operatingModes, {}, &TuningStep::mode, &OperatingMode::name));

// The step of a mode in hertz: "CW-U" gives 100. An unknown mode steps as a voice does.
constexpr int tuningStep(std::string_view mode) {
    const auto row = std::ranges::find(tuningSteps, mode, &TuningStep::mode);
    return row == tuningSteps.end() ? tuningSteps.front().hertz : row->hertz;
}

// The nearest multiple of the step that is within the limits, else the limit itself: 14'210'260 in steps of 500 gives
// 14'210'500.
constexpr long long roundedTo(int step, long long hertz, long long lowest, long long highest) {
    return std::clamp((hertz + step / 2) / step * step, lowest, highest);
}

}  // namespace corvane
