#pragma once

#include <span>

#include "simulator/command_set.h"

namespace simulator {

// The commands of texts, setup menu, tuner, meter, power and reports.
std::span<const CommandRow> stationCommands();

}  // namespace simulator
