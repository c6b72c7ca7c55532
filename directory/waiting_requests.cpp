#include "waiting_requests.h"

namespace corvane::directory {

// `give` is called under the lock: once none waits here, none waits in the HTTP library either.
Reply WaitingRequests::enter(Time deadline, std::string_view late, Reply give) {
    const std::lock_guard lock(mutex_);
    if (closed_) {
        give(stoppingAnswer());
        return [](const Answer&) {};
    }
    const long long number = ++entered_;
    waiting_.emplace(number, Waiting{deadline, late, std::move(give)});
    return [self = shared_from_this(), number](Answer answer) { self->answer(number, std::move(answer)); };
}

void WaitingRequests::answer(long long number, Answer answer) {
    const std::lock_guard lock(mutex_);
    const auto found = waiting_.find(number);
    if (found == waiting_.end()) return;
    found->second.give(std::move(answer));
    waiting_.erase(found);
    if (waiting_.empty()) none_.notify_all();
}

void WaitingRequests::answerLate(Time now) {
    const std::lock_guard lock(mutex_);
    std::erase_if(waiting_, [now](const auto& entry) {
        const Waiting& waiting = entry.second;
        if (now < waiting.deadline) return false;
        waiting.give(textAnswer(503, std::string(waiting.late)));
        return true;
    });
    if (waiting_.empty()) none_.notify_all();
}

void WaitingRequests::close() {
    std::unique_lock lock(mutex_);
    closed_ = true;
    none_.wait(lock, [this] { return waiting_.empty(); });
}

}  // namespace corvane::directory
