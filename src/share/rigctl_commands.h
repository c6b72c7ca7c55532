// The commands of the NET rigctl protocol that are answered: one row each. Any other is answered "RPRT -11".
#pragma once

#include <string_view>

namespace corvane {

struct RigctlExchange;

struct RigctlCommand {
    enum class Needs {
        nothing,      // answered whether or not there is a transceiver
        transceiver,  // answered -6 or -5 without one
    };

    char letter;            // '\0': it has the long name only
    std::string_view name;  // "get_freq", after a backslash on the line
    std::size_t arguments;
    bool takesText;  // the argument is the rest of the line
    bool sets;
    Needs needs;
    void (*handle)(RigctlExchange& exchange);
};

// nullptr: there is none.
const RigctlCommand* rigctlCommand(char letter);
const RigctlCommand* rigctlCommand(std::string_view name);

}  // namespace corvane
