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

// Of the on-line lists. A button column says with its title what its buttons do.
inline constexpr std::array potaTableColumns{
    TableColumn{"tune", "Tune", 8, TableColumn::Kind::button},
    TableColumn{"activator", "Activator", 12},
    TableColumn{"frequency", "kHz", 10, TableColumn::Kind::text, true},
    TableColumn{"mode", "Mode", 7},
    TableColumn{"reference", "Park", 10},
    TableColumn{"name", "Name", 34},
    TableColumn{"location", "Location", 12},
    TableColumn{"last", "Age", 9},
    TableColumn{"comment", "Comment", 24},
};
inline constexpr std::array sotaTableColumns{
    TableColumn{"tune2", "Tune", 8, TableColumn::Kind::button},
    TableColumn{"activator2", "Activator", 12},
    TableColumn{"activatorName", "Operator", 14},
    TableColumn{"frequency2", "kHz", 10, TableColumn::Kind::text, true},
    TableColumn{"mode2", "Mode", 7},
    TableColumn{"name2", "Summit", 26},
    TableColumn{"location2", "Height", 10},
    TableColumn{"reference2", "Points", 10},
    TableColumn{"last2", "Age", 9},
    TableColumn{"comment2", "Comment", 24},
};
inline constexpr std::array netLoggerTableColumns{
    TableColumn{"tune", "Tune", 8, TableColumn::Kind::button},
    TableColumn{"netName", "Net", 40},
    TableColumn{"freq", "kHz", 12, TableColumn::Kind::text, true},
    TableColumn{"mode2", "Mode", 8},
    TableColumn{"checkIns", "Subscribers", 12},
};
inline constexpr std::array netsTableColumns{
    TableColumn{"tune3", "Tune", 8, TableColumn::Kind::button},
    TableColumn{"netName", "Net", 36},
    TableColumn{"freq", "MHz", 10, TableColumn::Kind::text, true},
    TableColumn{"utc", "UTC", 10},
    TableColumn{"mode", "Mode", 8},
    TableColumn{"confirmed", "Confirmed", 12},
    TableColumn{"confirm", "Confirm", 10, TableColumn::Kind::button},
    TableColumn{"unconfirm", "Retract", 10, TableColumn::Kind::button},
};
inline constexpr int netsTableConfirmColumn = 6;
inline constexpr int netsTableUnconfirmColumn = 7;
inline constexpr std::array mwTableColumns{
    TableColumn{"tune3", "Tune", 8, TableColumn::Kind::button},
    TableColumn{"station", "Station", 30},
    TableColumn{"freq", "kHz", 10, TableColumn::Kind::text, true},
    TableColumn{"city", "City", 26},
    TableColumn{"power", "Power", 12},
};

inline constexpr int memoryReadSteps = 200;  // answers that a read of all memory channels waits for

}  // namespace corvane
