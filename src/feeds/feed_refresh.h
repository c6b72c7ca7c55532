// One refresh of a feed: a request, a wait of at most 2.0 s, and the result.
#pragma once

#include <functional>
#include <memory>

#include "platform/http_client.h"
#include "platform/tasks.h"

namespace corvane {

// Holds the result of one refresh; never used again for another.
struct ResponseBox {
    HttpClient::Rest show;
    HttpClient::Cancel cancel;
    std::function<void()> send;  // while the request is held back
};

// What is called once a refresh has shown its result. A newer refresh that replaces it inherits what it does not bring
// itself: so several presses of a key end with one sound.
struct RefreshEnd {
    std::function<void()> sound;
    std::function<void()> then;
};

// Refreshes of one feed never overlap: a new one ends the running one, whose answer is dropped.
class FeedRefresh {
public:
    // Decodes an answer; what it returns is then called on the user-interface thread. Runs on any thread, even after
    // the refresh has ended, so it may use only what it owns.
    using Read = std::function<HttpClient::Rest(const HttpResponse& response)>;

    static constexpr Scheduler::Duration patience{2000};

    FeedRefresh(HttpClient& client, const Tasks& tasks) : client_(client), tasks_(tasks) {}
    ~FeedRefresh() { drop(); }
    FeedRefresh(const FeedRefresh&) = delete;
    FeedRefresh& operator=(const FeedRefresh&) = delete;

    // Ends exactly once: with the answer, or after `patience` with an empty response whose problem is "no answer within
    // 2 s", for which `read` runs at once. A later answer is dropped. If the refresh that this one replaces is held
    // back, so is this one.
    void start(const HttpRequest& request, const Read& read, RefreshEnd end = {});
    // The same, but the request waits for release(). Its patience does not.
    void hold(const HttpRequest& request, const Read& read, RefreshEnd end = {});
    void release();
    bool runs() const { return box_ != nullptr; }

private:
    void finish();
    void drop();

    HttpClient& client_;
    const Tasks& tasks_;
    std::shared_ptr<ResponseBox> box_;
    RefreshEnd end_;
};

}  // namespace corvane
