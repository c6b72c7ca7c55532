#pragma once

#include <chrono>
#include <string>

namespace simulator {

// A time on the simulator's clock, since its start, or a span of it.
using Time = std::chrono::microseconds;

// What the transceiver sends over the air by itself: a text, or nothing while its tuner works.
struct Transmission {
    std::string text;
    Time duration{};
};

}  // namespace simulator
