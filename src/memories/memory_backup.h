// The memory channels as a file that people and programs can read.
#pragma once

#include <chrono>
#include <string>

#include "memories/memory_channel.h"

namespace corvane {

// Comma-separated, one line a programmed channel under a line of titles:
//   Location,Name,Frequency,Mode,Record
//   5,"20M FT8, EU",7.074000,USB,+000000210000
// Frequency in MHz; a tag without its blanks at the end, in quotes where it needs them; the record as the transceiver
// sent it after the frequency: clarifier, its two switches, mode, kind, tone, shift.
std::string memoryTableCsv(const ChannelsAsRead& channels);

// Below the data folder, dated in UTC to the second: "memory-channels/2026-11-23T140312Z.csv".
std::string memoryBackupName(std::chrono::system_clock::time_point when);

}  // namespace corvane
