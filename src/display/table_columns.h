// The columns of the tables.
#pragma once

#include <array>

#include "display/table_view.h"

namespace corvane {

inline constexpr std::array memoriesTableColumns{
    TableColumn{"memChan", "Channel", 9},
    TableColumn{"frequency", "Frequency (MHz)", 16, TableColumn::Kind::text, true},
    TableColumn{"mode", "Mode", 12},
    TableColumn{"memTag", "Memory Name", 16},
};

inline constexpr std::array autoMemTableColumns{
    TableColumn{"tune", "Tune", 8, TableColumn::Kind::button},
    TableColumn{"freq", "Frequency (Hz)", 16, TableColumn::Kind::text, true},
    TableColumn{"mode", "Mode", 12},
    TableColumn{"clear", "Clear", 8, TableColumn::Kind::button},
    TableColumn{"notes1", "Notes", 16},
};
inline constexpr int autoMemTableTuneColumn = 0;
inline constexpr int autoMemTableClearColumn = 3;

inline constexpr int memoryReadSteps = 200;  // answers that a read of all memory channels waits for

}  // namespace corvane
