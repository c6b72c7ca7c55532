#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "simulator/radio_state.h"
#include "simulator/transmission.h"

namespace simulator {

// What a command leads to. `answer` is the answer of a read, without ";", and empty for a set command. `report` is a
// change that shows in no reading of the front panel: a menu item, or the power going off.
struct Reply {
    bool accepted = true;
    std::string answer = {};
    std::string report = {};
    std::optional<Transmission> transmission = {};
};

inline Reply rejected() { return {.accepted = false}; }
inline Reply answered(std::string text) { return {.answer = std::move(text)}; }
inline Reply acceptedIf(bool accepted) { return {.accepted = accepted}; }

// Carries out one command, given without its ";". "FA014250000" tunes, "FA" is answered "FA014250000"; what the
// transceiver does not know or cannot do is rejected and changes nothing. While it is switched off it knows only "PS"
// and "PS1"; for everything else the reply is accepted and empty, since it then says nothing at all.
Reply execute(std::string_view command, RadioState& state);

// One command name with what takes its parameters, as the tables of the command groups hold it.
struct CommandRow {
    std::string_view name;
    Reply (*handle)(RadioState& state, std::string_view parameters);
};

}  // namespace simulator
