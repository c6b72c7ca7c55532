#include "feeds/clock_time.h"

#include <array>
#include <ctime>

namespace corvane {

std::string clockTime(std::chrono::system_clock::time_point when) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(when);
    std::tm utc{};
    gmtime_r(&seconds, &utc);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%H:%M UTC", &utc);
    return text.data();
}

}  // namespace corvane
