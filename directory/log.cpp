#include "log.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <climits>
#include <ctime>
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

std::string lineOf(std::string_view event, std::initializer_list<Log::Field> fields) {
    nlohmann::ordered_json line{{"time", utcTime()}, {"event", event}};
    for (const auto& [name, value] : fields) line[std::string(name)] = value;
    return line.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + '\n';
}

constexpr std::size_t mostBytes = std::size_t{1024} * 1024;
constexpr int waitMilliseconds = 200;

}  // namespace

void Log::close() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    wake_.notify_one();
    if (thread_.joinable()) thread_.join();
}

void Log::line(std::string_view event, std::initializer_list<Field> fields) {
    std::string text = lineOf(event, fields);
    {
        const std::lock_guard lock(mutex_);
        if (bytes_ + text.size() > mostBytes) {
            ++lost_;
            return;
        }
        bytes_ += text.size();
        waiting_.push_back(std::move(text));
    }
    wake_.notify_one();
}

// A pipe that is full keeps the line waiting; only the queue's bound, or the end, loses it.
void Log::write() {
    std::unique_lock lock(mutex_);
    for (;;) {
        wake_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
        if (waiting_.empty()) return;
        const long long lost = lost_;
        const bool ending = ending_;
        const std::string text = waiting_.front();
        lock.unlock();
        pollfd file{file_, POLLOUT, 0};
        const bool ready = poll(&file, 1, waitMilliseconds) > 0;
        const bool told = ready && (lost == 0 || put(lineOf("log", {{"lost", lost}})));
        const bool written = told && put(text);
        lock.lock();
        if (told) lost_ -= lost;
        if (!ready && !ending) continue;
        if (!written) ++lost_;
        bytes_ -= text.size();
        waiting_.pop_front();
        if (!ready) return;
    }
}

// In pieces that a pipe with room takes without a wait.
bool Log::put(std::string_view text) {
    std::string rest = (brokenOff_ ? "\n" : "") + std::string(text);
    while (!rest.empty()) {
        pollfd file{file_, POLLOUT, 0};
        if (poll(&file, 1, waitMilliseconds) <= 0) return false;
        const ssize_t size = ::write(file_, rest.data(), std::min<std::size_t>(rest.size(), PIPE_BUF));
        if (size <= 0) return false;
        rest.erase(0, static_cast<std::size_t>(size));
        brokenOff_ = !rest.empty();
    }
    return true;
}

}  // namespace corvane::directory
