// Requests whose answer is not ready yet.
#pragma once

#include <chrono>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>

#include "answer.h"

namespace corvane::directory {

// From any thread. Each request is answered once: by its reply, or by 503 when its time is over. A reply may come later
// than that, or after the server has gone; then it is dropped.
class WaitingRequests : public std::enable_shared_from_this<WaitingRequests> {
public:
    using Time = std::chrono::steady_clock::time_point;

    // `give` is called with the answer, once, and within the calls of this class only. `late` is the text of the 503.
    Reply enter(Time deadline, std::string_view late, Reply give);
    void answerLate(Time now);
    // From here on each request that enters is answered with 503 at once. Returns when none waits.
    void close();

private:
    struct Waiting {
        Time deadline;
        std::string_view late;
        Reply give;
    };
    void answer(long long number, Answer answer);

    std::mutex mutex_;
    std::condition_variable none_;
    std::map<long long, Waiting> waiting_;
    long long entered_ = 0;
    bool closed_ = false;
};

inline Answer stoppingAnswer() { return textAnswer(503, "The service is stopping."); }

}  // namespace corvane::directory
