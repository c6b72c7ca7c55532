#pragma once

namespace simulator {

inline constexpr int lowestFrequency = 30'000;
inline constexpr int highestFrequency = 75'000'000;

constexpr bool isInRange(int frequency) { return frequency >= lowestFrequency && frequency <= highestFrequency; }

// A frequency in hertz and the code of an operating mode.
struct Tuning {
    int frequency = lowestFrequency;
    char mode = '2';

    bool operator==(const Tuning&) const = default;
};

}  // namespace simulator
