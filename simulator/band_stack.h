#pragma once

#include <array>
#include <optional>

#include "simulator/tuning.h"

namespace simulator {

// What each band key remembers. Bands are numbered as in "BS05;": 0 is 1.8 MHz, 5 is 14 MHz, 10 is 50 MHz and 11
// general coverage, to which every frequency outside the others belongs.
class BandStack {
public:
    static constexpr int bandCount = 12;

    BandStack();

    // Notes where the operator is now, in the band that holds the frequency.
    void remember(Tuning tuning);

    // The last tuning of a band; nothing for a number outside 0 to 11.
    std::optional<Tuning> recall(int band) const;

    // The band that holds a frequency.
    static int bandOf(int frequency);

private:
    std::array<Tuning, bandCount> last_;
};

}  // namespace simulator
