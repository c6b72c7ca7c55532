// What the tables of memory channels and auto memories show.
#pragma once

#include <string>

#include "display/table_cell.h"
#include "memories/auto_memory_state.h"
#include "memories/memory_channel.h"

namespace corvane {

// A memory row's frequency field in MHz: "014250000" gives "14.250000". Nine characters without a point are hertz,
// shown unless they are 0. Any other text is megahertz, shown if it is a number from 0.03 to 75.
std::string shownMemoryFrequency(const std::string& field);

// The entry of the mode pop-up for a mode field: "2" gives 2, "A" and "10" give 10; any other text gives 0, no mode.
int memoryModeEntry(std::string_view field);

// The rows and columns must exist. `modes` are the entries of the mode pop-up.
TableCell memoriesTableCell(const MemoryTable& table, const EntryTitles& modes, int row, int column);
TableCell autoMemTableCell(const AutoMemoryState& autoMemories, int row, int column);

}  // namespace corvane
