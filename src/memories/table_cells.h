// What the tables of memory channels and auto memories show.
#pragma once

#include <string>

#include "memories/auto_memory_state.h"
#include "memories/memory_state.h"

namespace corvane {

// A memory row's frequency field in MHz: "014250000" gives "14.250000". Nine characters without a point are hertz, any
// other text is megahertz; nothing is shown for what is no frequency from 0.03 to 75 MHz.
std::string shownMemoryFrequency(const std::string& field);

// The rows and columns must exist.
std::string memoriesTableCell(const MemoryTable& table, int row, int column);
std::string autoMemTableCell(const AutoMemoryState& autoMemories, int row, int column);

}  // namespace corvane
