#pragma once

#include <array>
#include <optional>

#include "simulator/tuning.h"

namespace simulator {

// The tuning that each band key remembers. Bands are numbered as in "BS05;": 0 is 1.8 MHz, 5 is 14 MHz, 10 is 50 MHz
// and 11 is general coverage, all frequencies outside the other bands.
class BandStack {
public:
    static constexpr int bandCount = 12;

    BandStack();

    // Remembers the tuning in the band that holds its frequency.
    void remember(Tuning tuning);

    // The last tuning of a band; nothing for a number outside 0 to 11.
    std::optional<Tuning> recall(int band) const;

    // The band that holds a frequency.
    static int bandOf(int frequency);

private:
    std::array<Tuning, bandCount> last_;
};

}  // namespace simulator
