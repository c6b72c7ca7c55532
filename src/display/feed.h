// What is fetched from services on the web.
#pragma once

#include <cstddef>

namespace corvane {

enum class Feed : int { pota, netLogger, sota, nets, mediumWave, bandConditions };  // band conditions are no list

}  // namespace corvane
