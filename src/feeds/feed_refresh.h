// One refresh of a feed: a request, at most 2.0 s of patience, and what came of it.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/http_client.h"
#include "platform/scheduler.h"

namespace corvane {

// Where the answer of a request is put; one for every refresh, never used again.
struct ResponseBox {
    HttpResponse response;
    HttpClient::Cancel cancel;
};

// Refreshes of one feed never overlap: a new one ends the one that is under way, whose answer nobody sees.
class FeedRefresh {
public:
    using Later = std::function<void(Scheduler::Duration, std::function<void()>)>;
    using Handle = std::function<void(const HttpResponse& response)>;

    static constexpr Scheduler::Duration patience{2000};

    // `later` runs its task no longer than the refresh lives.
    FeedRefresh(HttpClient& client, Later later) : client_(client), later_(std::move(later)) {}
    ~FeedRefresh() { drop(); }
    FeedRefresh(const FeedRefresh&) = delete;
    FeedRefresh& operator=(const FeedRefresh&) = delete;

    // Calls `handle` once, when the answer has come or the patience is over; then there is no body, and the problem
    // says so. What comes later is dropped.
    void start(const HttpRequest& request, Handle handle);
    bool running() const { return box_ != nullptr; }

private:
    void finish();
    void drop();

    HttpClient& client_;
    Later later_;
    Handle handle_;
    std::shared_ptr<ResponseBox> box_;
};

}  // namespace corvane
