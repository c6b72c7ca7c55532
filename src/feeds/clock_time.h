// The time of day beside a list.
#pragma once

#include <chrono>
#include <string>

namespace corvane {

// "06:10 UTC".
std::string clockTime(std::chrono::system_clock::time_point when);

}  // namespace corvane
