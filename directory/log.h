// The service's log: one line of JSON per event, on standard output.
#pragma once

#include <initializer_list>
#include <iosfwd>
#include <mutex>
#include <nlohmann/json.hpp>
#include <string_view>
#include <utility>

namespace corvane::directory {

class Log {
public:
    using Field = std::pair<std::string_view, nlohmann::ordered_json>;

    explicit Log(std::ostream& stream) : stream_(stream) {}

    // From any thread: {"time":"2026-11-23T17:00:00.000Z","event":"request","path":"/nets.php","status":200}. Bytes
    // that are not UTF-8 are replaced, control characters escaped.
    void line(std::string_view event, std::initializer_list<Field> fields);

private:
    std::mutex mutex_;
    std::ostream& stream_;
};

}  // namespace corvane::directory
