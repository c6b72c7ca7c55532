// What a fuzz target defines, and how it says that something is wrong.
#pragma once

#include <string_view>

#define INVARIANT(condition) \
    if (!(condition)) __builtin_trap()

namespace corvane {

// Takes one input, whatever it is.
void fuzz(std::string_view input);

}  // namespace corvane
