// Puts rows directly into the tables, without an operator's action.
#pragma once

#include <string_view>

#include "controller/serial_port_demo_controller.h"

namespace corvane {

// Puts a channel into a row of the memory table, counted from 0.
inline void putChannel(MemoryChannels& memories, std::size_t row, const MemoryChannel& channel) {
    MemoryTable rows = memories.vqMemArray();
    rows.at(row) = channel;
    memories.setRows(rows);
}

// Keeps a frequency as an auto memory: "FA014074000;MD02;".
inline void keepAutoMemory(SerialPortDemoController& controller, std::string_view responses) {
    controller.interpretResponses(responses);
    controller.display.autoMemoryNowButton.performClick();
}

}  // namespace corvane
