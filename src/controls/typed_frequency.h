// A frequency as the operator types it: in megahertz, with a decimal point.
#pragma once

#include <string_view>

namespace corvane {

struct TypedFrequency {
    enum class Verdict { accepted, tooLowOrNoNumber, tooHigh };

    Verdict verdict = Verdict::tooLowOrNoNumber;
    int hertz = 0;               // of an accepted one, cut to whole hertz
    bool upperSideBand = false;  // the side band that is usual there

    bool operator==(const TypedFrequency&) const = default;
};

// "14.235", "014.235" and " 14.235 " give 14235000 Hz, "7.0741505" 7074150. Accepted is 0.03 to 75, both included. A
// comma, a unit, words and nothing at all are no numbers.
TypedFrequency typedFrequency(std::string_view text);

}  // namespace corvane
