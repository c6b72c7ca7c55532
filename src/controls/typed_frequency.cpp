#include "controls/typed_frequency.h"

#include "wire/decimal_number.h"
#include "wire/operating_modes.h"
#include "wire/tuning_range.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr double lowestUpperSideBand = SideBands::lowestUpper / 1e6;  // MHz

// A number typed with six decimals is a whole number of hertz, but its binary fraction may be slightly smaller.
constexpr double hair = 1e-6;  // Hz

}  // namespace

TypedFrequency typedFrequency(std::string_view text) {
    using Verdict = TypedFrequency::Verdict;
    const auto megahertz = decimalNumber(trimmed(text));
    if (!megahertz || *megahertz < lowestMegahertz) return {};
    if (*megahertz > highestMegahertz) return {Verdict::tooHigh};
    return {Verdict::accepted, static_cast<int>(*megahertz * 1'000'000 + hair), *megahertz >= lowestUpperSideBand};
}

}  // namespace corvane
