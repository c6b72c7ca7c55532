#pragma once

#include <array>
#include <optional>

#include "simulator/transmission.h"

namespace simulator {

// A tuning knob spun by hand: 879 reports in every 8 s, evenly spaced, of which 330 are frequencies, 272 meter
// readings, 243 information records and 34 tuning rates.
class KnobSpin {
public:
    enum class Report { frequency, meter, information, rate };

    void start(Time now, Time duration);
    void stop() { end_ = begin_; }

    // When the next report goes out; nothing when the knob stands still.
    std::optional<Time> nextReport() const;

    // The kind of that report; goes on to the next one.
    Report take();

private:
    Time begin_{};
    Time end_{};
    int taken_ = 0;
    std::array<int, 4> credit_{};
};

}  // namespace simulator
