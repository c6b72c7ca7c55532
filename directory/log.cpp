#include "log.h"

#include <array>
#include <chrono>
#include <ctime>
#include <ostream>
#include <string>

namespace corvane::directory {

namespace {

std::string utcTime() {
    const auto now = std::chrono::system_clock::now();
    const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    std::tm utc{};
    gmtime_r(&seconds, &utc);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S.", &utc);
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(now).time_since_epoch().count() % 1000;
    return text.data() + std::to_string(1000 + milliseconds).substr(1) + 'Z';
}

}  // namespace

void Log::line(std::string_view event, std::initializer_list<Field> fields) {
    nlohmann::ordered_json line{{"time", utcTime()}, {"event", event}};
    for (const auto& [name, value] : fields) line[std::string(name)] = value;
    const std::string text = line.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
    const std::lock_guard lock(mutex_);
    stream_ << text << std::endl;
}

}  // namespace corvane::directory
