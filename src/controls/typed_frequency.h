// A frequency as the operator types it: in megahertz, with a decimal point.
#pragma once

#include <string_view>

namespace corvane {

struct TypedFrequency {
    enum class Verdict { accepted, tooLowOrNoNumber, tooHigh };

    Verdict verdict = Verdict::tooLowOrNoNumber;
    int hertz = 0;               // of an accepted frequency, cut to whole hertz
    bool upperSideBand = false;  // whether it is usual there

    bool operator==(const TypedFrequency&) const = default;
};

// "14.235", "014.235" and " 14.235 " give 14235000 Hz, "7.0741505" gives 7074150. Frequencies from 0.03 to 75 are
// accepted, both included. A text with a comma, a unit or words is not a number, nor is the empty text.
TypedFrequency typedFrequency(std::string_view text);

}  // namespace corvane
