// The service's log: one line of JSON per event.
#pragma once

#include <condition_variable>
#include <deque>
#include <initializer_list>
#include <mutex>
#include <nlohmann/json.hpp>
#include <string_view>
#include <thread>
#include <utility>

namespace corvane::directory {

// Writes on a thread of its own, and waits for nobody: what the file does not take, because nobody reads the pipe or
// the disk is full, is lost, and counted in the next line that it takes: {"event":"log","lost":17}.
class Log {
public:
    using Field = std::pair<std::string_view, nlohmann::ordered_json>;

    // An open file, which stays open.
    explicit Log(int file) : file_(file), thread_([this] { write(); }) {}
    ~Log() { close(); }
    Log(const Log&) = delete;
    Log& operator=(const Log&) = delete;

    // From any thread: {"time":"2026-11-23T17:00:00.000Z","event":"request","path":"/nets.php","status":200}. Bytes
    // that are not UTF-8 are replaced, control characters escaped.
    void line(std::string_view event, std::initializer_list<Field> fields);
    // Writes what waits, as far as the file takes it at once. Later lines are lost.
    void close();

private:
    void write();
    bool put(std::string_view text);

    const int file_;
    std::mutex mutex_;
    std::condition_variable wake_;
    std::deque<std::string> waiting_;
    std::size_t bytes_ = 0;  // that wait
    long long lost_ = 0;     // lines
    bool ending_ = false;
    bool brokenOff_ = false;  // the last line in the file has no end
    std::thread thread_;      // the last member: it uses the others
};

}  // namespace corvane::directory
