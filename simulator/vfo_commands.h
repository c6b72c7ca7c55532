#pragma once

#include <span>

#include "simulator/command_set.h"

namespace simulator {

// The commands of frequency, mode, VFO and band.
std::span<const CommandRow> vfoCommands();

}  // namespace simulator
