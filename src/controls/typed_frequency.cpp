#include "controls/typed_frequency.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "wire/operating_modes.h"
#include "wire/tuning_range.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr double lowestUpperSideBand = SideBands::lowestUpper / 1e6;  // MHz

// A number typed with six decimals is a whole number of hertz, which binary fractions may miss by a hair.
constexpr double hair = 1e-6;  // Hz

}  // namespace

TypedFrequency typedFrequency(std::string_view text) {
    using Verdict = TypedFrequency::Verdict;
    text = trimmed(text);
    text.remove_prefix(std::min(text.find_first_not_of('0'), text.size()));
    double megahertz = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), megahertz);
    const bool number = error == std::errc{} && end == text.data() + text.size() && std::isfinite(megahertz);
    if (!number || megahertz < lowestMegahertz) return {};
    if (megahertz > highestMegahertz) return {Verdict::tooHigh};
    return {Verdict::accepted, static_cast<int>(megahertz * 1'000'000 + hair), megahertz >= lowestUpperSideBand};
}

}  // namespace corvane
