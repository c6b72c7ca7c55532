// The operator's identifier at the nets directory.
#pragma once

#include <string>

namespace corvane {

// 32 hexadecimal digits from the system's source of randomness.
std::string randomKey();

}  // namespace corvane
