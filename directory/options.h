// The command line.
#pragma once

#include <string>

#include "directory_service.h"

namespace corvane::directory {

struct Options {
    enum class Command { serve, importNets, importStations, exportNets, exportStations, help, version };

    Command command = Command::serve;
    std::string file;  // of an import
    DirectoryService::Options service{{}, {}, 120, {.port = 8073}};
};

// Throws std::invalid_argument, with a sentence for the user, for a command line with an error.
Options optionsFrom(int argc, char** argv);

std::string helpText();

}  // namespace corvane::directory
