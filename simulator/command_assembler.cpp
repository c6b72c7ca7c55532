#include "simulator/command_assembler.h"

#include <utility>

namespace simulator {

std::vector<std::string> CommandAssembler::take(std::string_view bytes) {
    std::vector<std::string> commands;
    for (const char byte : bytes) {
        if (byte == ';')
            commands.push_back(std::exchange(unfinished_, {}));
        else if (unfinished_.size() < longestCommand)
            unfinished_.push_back(byte);
    }
    return commands;
}

}  // namespace simulator
