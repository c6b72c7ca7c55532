// The commands that tune the transceiver to a listed station or spot: "MD02;SF1E;FA014074000;SS0640000;".
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvane {

enum class ModeWords { spots, nets };  // the words for a mode: spots say "SSB", nets "LSB" and "USB"

// The commands for a frequency in hertz on VFO `vfo` ("A" or "B"), in the mode's usual side band: the upper one from 10
// MHz on. An unknown word leaves the mode unchanged.
std::string tuneCommandForSpot(long long hertz, std::string_view mode, ModeWords words, std::string_view vfo);

// The same for a medium-wave station, in AM: 540000 gives "MD05;FA000540000;SS0640000;".
std::string tuneCommandForStation(long long hertz, std::string_view vfo);

// The same for a NetLogger net, whose frequency is in MHz or, above 70, in kHz: "7.255" gives
// "MD01;FA007255000;SS0640000;SS0560000;". Text that is not a number gives 0 Hz, which the transceiver rejects.
std::string tuneCommandForNetLogger(std::string_view frequency, std::string_view vfo);
// The frequency of this command in hertz: "7.255" gives 7255000.
long long hertzForNetLogger(std::string_view frequency);

}  // namespace corvane
