#include "wire/cat_command.h"

#include <fmt/core.h>

namespace corvane {

std::string zeroPadded(long long number, int width) { return fmt::format("{:0{}}", number, width); }

}  // namespace corvane
