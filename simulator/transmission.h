#pragma once

#include <chrono>
#include <string>

namespace simulator {

// A time since the simulator's start, or a duration.
using Time = std::chrono::microseconds;

// What the transceiver sends over the air: a text, or an empty one while its tuner works.
struct Transmission {
    std::string text;
    Time duration{};
};

}  // namespace simulator
