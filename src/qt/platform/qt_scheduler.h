// Delayed work on the event loop.
#pragma once

#include <QTimer>

#include <chrono>
#include <functional>
#include <map>

#include "platform/scheduler.h"

namespace corvane {

// Runs one task per turn of the event loop, in the order of their due times; tasks due at the same time run in the
// order given. A `speed` of 100 lets 5 s pass in 50 ms, for trials. The destructor drops pending tasks.
class QtScheduler final : public Scheduler {
public:
    explicit QtScheduler(double speed = 1);

    std::chrono::system_clock::time_point now() const override { return std::chrono::system_clock::now(); }
    void after(Duration delay, std::function<void()> task) override;

private:
    using Clock = std::chrono::steady_clock;

    void arm();
    void runNext();

    double speed_;
    std::multimap<Clock::time_point, std::function<void()>> tasks_;  // equal keys stay in the order of insertion
    QTimer timer_;
};

}  // namespace corvane
