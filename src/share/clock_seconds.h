// Times as the panel "Other programs" shows them.
#pragma once

#include <fmt/core.h>

#include <chrono>
#include <string>

namespace corvane {

// "13:02:11 UTC"
inline std::string clockSeconds(std::chrono::system_clock::time_point time) {
    const auto second = std::chrono::floor<std::chrono::seconds>(time);
    const std::chrono::hh_mm_ss clock(second - std::chrono::floor<std::chrono::days>(second));
    return fmt::format("{:02}:{:02}:{:02} UTC", clock.hours().count(), clock.minutes().count(),
                       clock.seconds().count());
}

}  // namespace corvane
