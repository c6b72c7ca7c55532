#include "feeds/clock_time.h"

#include <fmt/chrono.h>

namespace corvane {

std::string clockTime(std::chrono::system_clock::time_point when) {
    return fmt::format("{:%H:%M} UTC", fmt::gmtime(when));
}

}  // namespace corvane
