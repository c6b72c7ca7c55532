#pragma once

#include <chrono>
#include <string>
#include <utility>
#include <vector>

#include "simulator/simulated_transceiver.h"

namespace simulator {

/// A transceiver with a manual clock and a record of what it sent.
class RadioOnLine {
public:
    RadioOnLine() {
        radio.transmit = [this](std::string_view bytes) {
            sent += bytes;
            pieces.emplace_back(bytes);
            lastSent = now;
        };
    }

    /// Advances the clock, event by event.
    void pass(Time duration) {
        const Time end = now + duration;
        for (auto event = radio.nextEvent(); event && *event <= end; event = radio.nextEvent()) {
            now = std::max(now, *event);
            radio.advanceTo(now);
        }
        now = end;
        radio.advanceTo(now);
    }

    /// The bytes that come back within 200 ms.
    std::string exchange(std::string_view commands, Time wait = std::chrono::milliseconds(200)) {
        sent.clear();
        pieces.clear();
        radio.receive(commands, now);
        pass(wait);
        return std::exchange(sent, {});
    }

    SimulatedTransceiver radio;
    Time now{};
    Time lastSent{};
    std::string sent;
    std::vector<std::string> pieces;
};

}  // namespace simulator
