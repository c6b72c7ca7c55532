// Modes as memory programming tools call them: "CW", "NFM", "DIG".
#pragma once

#include <optional>
#include <string_view>

namespace corvane {

// The code for a mode as a file names it, small letters or capitals: a tool's name or the transceiver's own, "CW-U". A
// comment that is the transceiver's own name of a mode that is written as `mode` decides between those: "DIG" is 'C',
// with the comment "PSK" 'E'.
std::optional<char> memoryModeCode(std::string_view mode, std::string_view comment);

}  // namespace corvane
