#include "qt/platform/qt_scheduler.h"

#include <algorithm>
#include <utility>

namespace corvane {

QtScheduler::QtScheduler(double speed) : speed_(speed > 0 ? speed : 1) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { runNext(); });
}

void QtScheduler::after(Duration delay, std::function<void()> task) {
    const std::chrono::duration<double, std::milli> scaled = std::max(delay, Duration::zero()) / speed_;
    tasks_.emplace(Clock::now() + std::chrono::duration_cast<Clock::duration>(scaled), std::move(task));
    arm();
}

void QtScheduler::arm() {
    if (tasks_.empty()) return;
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(tasks_.begin()->first - Clock::now());
    timer_.start(std::max(wait, std::chrono::milliseconds::zero()));
}

void QtScheduler::runNext() {
    if (tasks_.empty() || tasks_.begin()->first > Clock::now()) return arm();
    auto next = tasks_.extract(tasks_.begin());
    arm();  // before the task, which may run an event loop of its own
    next.mapped()();
}

}  // namespace corvane
