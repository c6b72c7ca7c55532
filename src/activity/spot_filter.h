// Which entries of the lists and of the band map the operator wants to see: the chips. Kept between runs.
#pragma once

#include <bitset>
#include <functional>
#include <string_view>

#include "display/display.h"
#include "platform/settings_store.h"

namespace corvane {

class SpotFilter {
public:
    SpotFilter(Display& display, SettingsStore& settings);

    void restore();
    void press(Chip chip);
    // The active VFO may have gone to another band.
    void followBand();

    // Whether the lit chips let an entry pass: its band and its mode, on the map also its kind.
    bool passes(long long hertz, std::string_view mode) const;
    bool passes(Chip kind, long long hertz, std::string_view mode) const;
    // Whether some chip may hold entries back.
    bool limits() const { return lit_.any(); }

    std::function<void()> onChange = [] {};

private:
    bool lights(Chip chip) const { return lit_.test(static_cast<std::size_t>(chip)); }
    bool lightsAny(ChipGroup group) const;
    void show();

    Display& display_;
    SettingsStore& settings_;
    std::bitset<filterChips.size()> lit_;  // without "all"
    int band_ = 0;                         // the tag of its key; 0: not known, every band passes
};

}  // namespace corvane
