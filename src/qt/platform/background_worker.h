// Work that may block, done in order on a thread of its own.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <stop_token>
#include <thread>

namespace corvane {

// Runs tasks one after the other, away from the caller. At most `capacity` tasks wait; what comes on top is dropped.
// The thread starts with the first task.
//
// At its end the worker drops what waits, asks the running task to stop through its token and waits `farewell` for it.
// A task that hangs longer is left behind with its thread, so a task may use only what it owns or shares, never its
// poster.
class BackgroundWorker {
public:
    using Task = std::function<void(std::stop_token stop)>;

    BackgroundWorker(std::size_t capacity, std::chrono::milliseconds farewell);
    ~BackgroundWorker();
    BackgroundWorker(const BackgroundWorker&) = delete;
    BackgroundWorker& operator=(const BackgroundWorker&) = delete;

    // Returns at once; false when the task was dropped.
    bool post(Task task);

private:
    struct Shared;

    std::size_t capacity_;
    std::chrono::milliseconds farewell_;
    std::shared_ptr<Shared> shared_;
    std::thread thread_;
};

}  // namespace corvane
