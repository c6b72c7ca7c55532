#include "simulator/program_options.h"

#include <string_view>

#include "simulator/console.h"

namespace simulator {

ProgramOptions parseOptions(std::span<const char* const> arguments) {
    ProgramOptions options;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string_view argument = arguments[index];
        if (argument == "--link" && index + 1 < arguments.size())
            options.link = arguments[++index];
        else if (argument == "--link")
            options.fault = "--link needs a path";
        else if (argument == "--instant")
            options.instant = true;
        else if (argument == "--silent")
            options.silent = true;
        else if (argument == "--help" || argument == "-h")
            options.help = true;
        else if (argument == "--version")
            options.version = true;
        else
            options.fault = "unknown option " + std::string(argument);
    }
    return options;
}

std::string usageText() {
    return "corvane-radio: a simulated transceiver on a pseudo-terminal\n"
           "\n"
           "  --link PATH   make a symbolic link to the port, so that it has a fixed name\n"
           "  --instant     answer at once instead of after 10 ms at 38400 baud\n"
           "  --silent      start without answering; \"silent off\" ends that\n"
           "  --help        this text\n"
           "  --version     the version\n"
           "\n"
           "Commands typed while it runs:\n\n" +
           Console::help();
}

}  // namespace simulator
