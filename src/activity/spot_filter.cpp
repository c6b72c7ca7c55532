#include "activity/spot_filter.h"

#include <algorithm>
#include <string>

#include "activity/mode_family.h"
#include "interpret/band_table.h"
#include "interpret/shown_frequency.h"

namespace corvane {

namespace {

constexpr std::string_view key = "chips";

}  // namespace

SpotFilter::SpotFilter(Display& display, SettingsStore& settings) : display_(display), settings_(settings) { show(); }

void SpotFilter::restore() {
    const std::string kept = ' ' + settings_.text(key).value_or("") + ' ';
    for (const FilterChip& row : filterChips)
        lit_.set(static_cast<std::size_t>(row.chip),
                 row.chip != Chip::all && kept.find(' ' + std::string(row.outlet.name) + ' ') != std::string::npos);
    show();
}

void SpotFilter::press(Chip chip) {
    if (chip == Chip::all)
        lit_.reset();
    else
        lit_.flip(static_cast<std::size_t>(chip));
    std::string kept;
    for (const FilterChip& row : filterChips)
        if (lights(row.chip)) kept.append(kept.empty() ? "" : " ").append(row.outlet.name);
    settings_.setText(key, kept);
    show();
    followBand();
    onChange();
}

void SpotFilter::show() {
    for (const FilterChip& row : filterChips)
        display_.chip(row.chip).setChecked(row.chip == Chip::all ? lit_.none() : lights(row.chip));
}

void SpotFilter::followBand() {
    if (!lights(Chip::thisBand)) return;
    const auto hertz = activeHertz(display_);
    const int band = hertz ? bandKeyTag(static_cast<int>(*hertz)) : 0;
    if (std::exchange(band_, band) != band) onChange();
}

bool SpotFilter::lightsAny(ChipGroup group) const {
    return std::ranges::any_of(filterChips,
                               [&](const FilterChip& row) { return row.group == group && lights(row.chip); });
}

bool SpotFilter::passes(long long hertz, std::string_view mode) const {
    const bool tooHigh = hertz > bandTable.front().upperBound;
    if (lights(Chip::thisBand) && band_ != 0 && (tooHigh || bandKeyTag(static_cast<int>(hertz)) != band_)) return false;
    if (!lightsAny(ChipGroup::mode)) return true;
    const auto family = familyOf(mode);
    return family && lights(*family);
}

bool SpotFilter::passes(Chip kind, long long hertz, std::string_view mode) const {
    return (!lightsAny(ChipGroup::kind) || lights(kind)) && passes(hertz, mode);
}

}  // namespace corvane
