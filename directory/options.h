// The command line.
#pragma once

#include <string>

#include "catalogue_commands.h"
#include "directory_service.h"

namespace corvane::directory {

struct Options {
    enum class Command { serve, import, exportList, help, version };

    Command command = Command::serve;
    List list = List::nets;  // of an import or export
    std::string file;        // of an import
    bool mayShrink = false;  // see Import
    DirectoryService::Options service{{}, {}, 120, {.port = 8073}};
};

// Throws std::invalid_argument, with a sentence for the user, for a command line with an error.
Options optionsFrom(int argc, char** argv);

std::string helpText();

}  // namespace corvane::directory
