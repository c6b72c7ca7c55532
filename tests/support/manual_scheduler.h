// A clock that stands still until a test moves it.
#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "platform/scheduler.h"
#include "tests/support/own_thread.h"

namespace corvane {

class ManualScheduler final : public Scheduler {
public:
    // Starts at the beginning of 2026-11-23 UTC.
    std::chrono::system_clock::time_point now() const override {
        thread_.check();
        return std::chrono::sys_days{std::chrono::year{2026} / 11 / 23} + now_ + set_;
    }
    void setClock(Duration by) { set_ += by; }  // as an operator does; what is planned stays
    void after(Duration delay, std::function<void()> task) override {
        thread_.check();
        tasks_.emplace(now_ + delay, std::move(task));
    }

    // Runs what falls due within `time`, what those tasks plan included, in the order of time.
    void advance(Duration time) {
        const Duration end = now_ + time;
        while (!tasks_.empty() && tasks_.begin()->first <= end) {
            auto due = tasks_.extract(tasks_.begin());
            now_ = due.key();
            due.mapped()();
        }
        now_ = end;
    }

    std::size_t waiting() const { return tasks_.size(); }
    // The time until the next task.
    std::optional<Duration> nextDue() const {
        return tasks_.empty() ? std::nullopt : std::optional(std::max(Duration{0}, tasks_.begin()->first - now_));
    }

private:
    OwnThread thread_;
    Duration now_{0};
    Duration set_{0};
    std::multimap<Duration, std::function<void()>> tasks_;  // equal times keep the order given
};

}  // namespace corvane
