// The operator's call sign in the transceiver's setup menu.
#pragma once

#include <string>
#include <string_view>

namespace corvane {

// The command that stores a call sign in upper case, without white space at its ends, padded or cut to twelve
// characters: " n0call " gives "EX040101N0CALL      ;".
std::string callSignCommand(std::string_view text);

}  // namespace corvane
