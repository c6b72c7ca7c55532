// Texts that the transceiver transmits from its memories: memory 5 of the present mode group is the scratch space of a
// text that the operator types.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "wire/operating_modes.h"

namespace corvane {

inline constexpr std::size_t textPieceLength = 49;  // characters
inline constexpr int scratchMemory = 5;

// A text in pieces of 49 characters. The last one is shorter, and empty for an empty text and for one that the pieces
// before it use up: 60 characters give 49 and 11, 49 give 49 and 0.
std::vector<std::string_view> textPieces(std::string_view text);

// Stores a text in memory 5 of the group: "EM05CQ TEST};".
std::string storeScratch(const ModeGroup& group, std::string_view text);

// Stores a text, cut to 49 characters, in memory n and asks for it back: "KM2CQ TEST;KM2;".
std::string storeAndReadBack(const ModeGroup& group, int memory, std::string_view text);

}  // namespace corvane
