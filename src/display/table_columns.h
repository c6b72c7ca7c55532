// The columns of the tables.
#pragma once

#include <array>

#include "display/table_view.h"

namespace corvane {

inline constexpr std::array memoriesTableColumns{
    TableColumn{"handle", "", 1},
    TableColumn{"memChan", "Channel", 8, TableColumn::Alignment::left, false, TableColumn::Tells::name},
    TableColumn{"frequency", "Frequency (MHz)", 18, TableColumn::Alignment::right, true, TableColumn::Tells::megahertz},
    TableColumn{"mode", "Mode", 13},
    TableColumn{"memTag", "Memory Name", 16, TableColumn::Alignment::left, true},
};
// The columns whose cells are edited.
inline constexpr int memoryFrequencyColumn = 2;
inline constexpr int memoryModeColumn = 3;
inline constexpr int memoryTagColumn = 4;
static_assert(memoriesTableColumns[memoryFrequencyColumn].identifier == "frequency");
static_assert(memoriesTableColumns[memoryModeColumn].identifier == "mode");
static_assert(memoriesTableColumns[memoryTagColumn].identifier == "memTag");

inline constexpr std::array autoMemTableColumns{
    TableColumn{"tune", "Tune", 8, TableColumn::Alignment::center},
    TableColumn{"freq", "Frequency (Hz)", 16, TableColumn::Alignment::right, false, TableColumn::Tells::hertz},
    TableColumn{"mode", "Mode", 12},
    TableColumn{"clear", "Clear", 8, TableColumn::Alignment::center},
    TableColumn{"notes1", "Notes", 16},
};
inline constexpr int autoMemTableNotesColumn = 4;
static_assert(autoMemTableColumns[autoMemTableNotesColumn].identifier == "notes1");

// The programs that are connected.
inline constexpr std::array shareTableColumns{
    TableColumn{"program", "Program", 22},
    TableColumn{"since", "Since", 14},
    TableColumn{"last", "Last request", 24},
    TableColumn{"disconnect", "Disconnect", 14, TableColumn::Alignment::center},
};

// What is watched, and what of it is on the air.
inline constexpr std::array watchListTableColumns{
    TableColumn{"entry", "Watched", 16, TableColumn::Alignment::left, false, TableColumn::Tells::name},
    TableColumn{"remove", "Remove", 10, TableColumn::Alignment::center},
};
inline constexpr std::array watchTableColumns{
    TableColumn{"tune", "Tune", 8, TableColumn::Alignment::center},
    TableColumn{"activator", "Activator", 17, TableColumn::Alignment::left, false, TableColumn::Tells::name},
    TableColumn{"frequency", "kHz", 10, TableColumn::Alignment::right, false, TableColumn::Tells::kilohertz},
    TableColumn{"mode", "Mode", 7},
    TableColumn{"kind", "List", 7},
    TableColumn{"reference", "Reference", 11},
    TableColumn{"name", "Name", 24},
    TableColumn{"last", "Age", 9, TableColumn::Alignment::right, false, TableColumn::Tells::nothing, true},
    TableColumn{"comment", "Comment", 16},
};

// Of the on-line lists.
inline constexpr std::array potaTableColumns{
    TableColumn{"tune", "Tune", 8, TableColumn::Alignment::center},
    TableColumn{"activator", "Activator", 17, TableColumn::Alignment::left, true, TableColumn::Tells::name},
    TableColumn{"frequency", "kHz", 10, TableColumn::Alignment::right, true, TableColumn::Tells::kilohertz},
    TableColumn{"mode", "Mode", 7, TableColumn::Alignment::left, true},
    TableColumn{"reference", "Park", 10, TableColumn::Alignment::center, true},
    TableColumn{"name", "Name", 34, TableColumn::Alignment::left, true},
    TableColumn{"location", "Location", 12, TableColumn::Alignment::left, true},
    TableColumn{"last", "Age", 9, TableColumn::Alignment::right, true, TableColumn::Tells::nothing, true},
    TableColumn{"comment", "Comment", 24, TableColumn::Alignment::left, true},
};
inline constexpr std::array sotaTableColumns{
    TableColumn{"tune2", "Tune", 8, TableColumn::Alignment::center},
    TableColumn{"activator2", "Activator", 17, TableColumn::Alignment::left, true, TableColumn::Tells::name},
    TableColumn{"activatorName", "Operator", 14, TableColumn::Alignment::left, true},
    TableColumn{"frequency2", "kHz", 10, TableColumn::Alignment::right, true, TableColumn::Tells::kilohertz},
    TableColumn{"mode2", "Mode", 7, TableColumn::Alignment::left, true},
    TableColumn{"name2", "Summit", 26, TableColumn::Alignment::left, true},
    TableColumn{"location2", "Height", 10, TableColumn::Alignment::left, true},
    TableColumn{"reference2", "Points", 10, TableColumn::Alignment::left, true},
    TableColumn{"last2", "Age", 9, TableColumn::Alignment::right, true, TableColumn::Tells::nothing, true},
    TableColumn{"comment2", "Comment", 24, TableColumn::Alignment::left, true},
};
inline constexpr std::array netLoggerTableColumns{
    TableColumn{"tune", "Tune", 8, TableColumn::Alignment::center},
    TableColumn{"netName", "Net", 40, TableColumn::Alignment::left, true, TableColumn::Tells::name},
    TableColumn{"freq", "kHz", 12, TableColumn::Alignment::right, true, TableColumn::Tells::kilohertz},
    TableColumn{"mode2", "Mode", 8, TableColumn::Alignment::left, true},
    TableColumn{"checkIns", "Subscribers", 12, TableColumn::Alignment::right, true, TableColumn::Tells::nothing, true},
};
inline constexpr std::array netsTableColumns{
    TableColumn{"tune3", "Tune", 8, TableColumn::Alignment::center},
    TableColumn{"netName", "Net", 36, TableColumn::Alignment::left, true, TableColumn::Tells::name},
    TableColumn{"freq", "MHz", 10, TableColumn::Alignment::right, true, TableColumn::Tells::megahertz},
    TableColumn{"utc", "UTC", 10, TableColumn::Alignment::left, true},
    TableColumn{"mode", "Mode", 8, TableColumn::Alignment::left, true},
    TableColumn{"confirmed", "Confirmed", 12, TableColumn::Alignment::left, true, TableColumn::Tells::nothing, true},
    TableColumn{"confirm", "Confirm", 10, TableColumn::Alignment::center},
    TableColumn{"unconfirm", "Retract", 10, TableColumn::Alignment::center},
};
inline constexpr std::array mwTableColumns{
    TableColumn{"tune3", "Tune", 8, TableColumn::Alignment::center},
    TableColumn{"station", "Station", 30, TableColumn::Alignment::left, true, TableColumn::Tells::name},
    TableColumn{"freq", "kHz", 10, TableColumn::Alignment::right, true, TableColumn::Tells::kilohertz},
    TableColumn{"city", "City", 26, TableColumn::Alignment::left, true},
    TableColumn{"power", "Power", 12, TableColumn::Alignment::right, true},
};

}  // namespace corvane
