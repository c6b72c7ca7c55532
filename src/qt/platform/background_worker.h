// Runs blocking work in order on its own thread.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <stop_token>
#include <thread>

namespace corvane {

// Runs tasks one after the other on its thread. At most `capacity` tasks wait; further ones are dropped. The thread
// starts with the first task.
//
// The destructor drops waiting tasks, asks the running one to stop through its token and waits up to `farewell` for it.
// A task that hangs longer is left running on its thread. So a task may use only what it owns or shares, never the
// object that posted it.
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
