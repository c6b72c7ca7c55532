#pragma once

#include <span>
#include <string>

namespace simulator {

// The command line of corvane-radio.
struct ProgramOptions {
    std::string link = {};  ///< symbolic link to make to the port, or empty
    bool instant = false;
    bool silent = false;
    bool help = false;
    bool version = false;
    std::string fault = {};  ///< the error in the command line, or empty

    bool operator==(const ProgramOptions&) const = default;
};

// Reads the arguments after the program's name: --link PATH, --instant, --silent, --help, --version.
ProgramOptions parseOptions(std::span<const char* const> arguments);

// What --help prints: the options and the typed commands.
std::string usageText();

}  // namespace simulator
