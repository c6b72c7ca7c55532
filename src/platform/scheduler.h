// The time of day, and delayed tasks on the user-interface thread.
#pragma once

#include <chrono>
#include <functional>

namespace corvane {

class Scheduler {
public:
    using Duration = std::chrono::milliseconds;

    virtual ~Scheduler() = default;

    // The time of day.
    virtual std::chrono::system_clock::time_point now() const = 0;

    // Runs `task` once, `delay` from now, from the event loop. Tasks due at the same time run in the order given.
    virtual void after(Duration delay, std::function<void()> task) = 0;
};

}  // namespace corvane
