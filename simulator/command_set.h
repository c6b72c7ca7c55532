#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "simulator/radio_state.h"
#include "simulator/transmission.h"

namespace simulator {

// The result of a command. `answer` is the answer to a read command, without ";", and empty for a set command. `report`
// tells a change that no reading of the front panel shows: a menu item, or the power switched off.
struct Reply {
    bool accepted = true;
    std::string answer = {};
    std::string report = {};
    std::optional<Transmission> transmission = {};
};

inline Reply rejected() { return {.accepted = false}; }
inline Reply answered(std::string text) { return {.answer = std::move(text)}; }
inline Reply acceptedIf(bool accepted) { return {.accepted = accepted}; }

// Carries out one command, given without its ";". "FA014250000" tunes, "FA" is answered "FA014250000". An unknown or
// impossible command is rejected and changes nothing. While switched off, the transceiver knows only "PS" and "PS1";
// the reply to any other command is accepted and empty, because then it sends nothing at all.
Reply execute(std::string_view command, RadioState& state);

// A row of a command group's table: a command name and the function that takes its parameters.
struct CommandRow {
    std::string_view name;
    Reply (*handle)(RadioState& state, std::string_view parameters);
};

}  // namespace simulator
