#pragma once

#include <span>

#include "simulator/command_set.h"

namespace simulator {

// The commands of memory channels and quick memories.
std::span<const CommandRow> memoryCommands();

}  // namespace simulator
