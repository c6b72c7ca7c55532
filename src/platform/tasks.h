// Delayed tasks that end with their owner.
#pragma once

#include <memory>
#include <utility>

#include "platform/scheduler.h"

namespace corvane {

// A room's own access to the scheduler: a task that falls due after the room has gone does not run.
class Tasks {
public:
    explicit Tasks(Scheduler& scheduler) : scheduler_(scheduler) {}
    Tasks(const Tasks&) = delete;
    Tasks& operator=(const Tasks&) = delete;

    std::chrono::system_clock::time_point now() const { return scheduler_.now(); }

    // Wraps `callback` for a caller that may outlive the owner: once the owner has gone, the wrapper does nothing.
    template <typename Callback>
    auto guarded(Callback callback) const {
        return [owner = std::weak_ptr(owner_), call = std::move(callback)](auto&&... arguments) {
            if (!owner.expired()) call(std::forward<decltype(arguments)>(arguments)...);
        };
    }

    void after(Scheduler::Duration delay, std::function<void()> task) const {
        scheduler_.after(delay, guarded(std::move(task)));
    }

private:
    Scheduler& scheduler_;
    const std::shared_ptr<const int> owner_ = std::make_shared<const int>(0);
};

}  // namespace corvane
