// Modes as memory programming tools call them: "CW", "NFM", "DIG".
#pragma once

#include <optional>
#include <string_view>

namespace corvane {

// The code for a mode's name in a file, in upper or lower case: a tool's name, or the transceiver's own such as "CW-U".
// If several modes share the tool's name, a comment with the transceiver's own name decides: "DIG" is 'C', but with the
// comment "PSK" it is 'E'.
std::optional<char> memoryModeCode(std::string_view mode, std::string_view comment);

}  // namespace corvane
