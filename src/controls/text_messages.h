// Texts that the transceiver transmits from its memories. Memory 5 of the present mode group is the scratch space for
// texts that the operator types.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "wire/operating_modes.h"

namespace corvane {

inline constexpr std::size_t textPieceLength = 49;  // characters
inline constexpr int scratchMemory = 5;

// Cuts a text into pieces of 49 characters. The last piece is always shorter and may be empty: 60 characters give
// pieces of 49 and 11, 49 characters give 49 and 0.
std::vector<std::string_view> textPieces(std::string_view text);

// The command that stores a text in memory 5 of the group: "EM05CQ TEST};".
std::string storeScratch(const ModeGroup& group, std::string_view text);

// The commands that store a text, cut to 49 characters, in a memory and ask for it back: "KM2CQ TEST;KM2;".
std::string storeAndReadBack(const ModeGroup& group, int memory, std::string_view text);

}  // namespace corvane
