// The memory channels as a file that people and programs can read.
#pragma once

#include <chrono>
#include <string>

#include "memories/memory_channel.h"

namespace corvane {

// Comma-separated: a line of titles, then one line for each programmed channel:
//   Location,Name,Frequency,Mode,Record
//   5,"20M FT8, EU",7.074000,USB,+000000210000
// The frequency is in MHz. The tag has no blanks at its end, and quotes where needed. The record is what the
// transceiver sent after the frequency: clarifier, its two switches, mode, kind, tone, shift.
std::string memoryTableCsv(const ChannelsAsRead& channels);

// The file's name in the data folder, with the UTC time to the second: "memory-channels/2026-11-23T140312Z.csv".
std::string memoryBackupName(std::chrono::system_clock::time_point when);

// The same for changes that were not written: "memory-channels/2026-11-23T140312Z-not-written.csv".
std::string memoryEditsName(std::chrono::system_clock::time_point when);

}  // namespace corvane
