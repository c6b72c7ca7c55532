// One refresh of a feed: a request, at most 2.0 s of patience, and what came of it.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/http_client.h"
#include "platform/scheduler.h"

namespace corvane {

// Where what was made of an answer is put; one for every refresh, never used again.
struct ResponseBox {
    HttpClient::Rest show;
    HttpClient::Cancel cancel;
};

// Refreshes of one feed never overlap: a new one ends the one that is under way, whose answer nobody sees.
class FeedRefresh {
public:
    using Later = std::function<void(Scheduler::Duration, std::function<void()>)>;
    // Makes of an answer what is then to be done on the user-interface thread. Runs on any thread, also when nobody
    // waits for it any more, so it may use only what it owns.
    using Read = std::function<HttpClient::Rest(const HttpResponse& response)>;

    static constexpr Scheduler::Duration patience{2000};

    // `later` runs its task no longer than the refresh lives.
    FeedRefresh(HttpClient& client, Later later) : client_(client), later_(std::move(later)) {}
    ~FeedRefresh() { drop(); }
    FeedRefresh(const FeedRefresh&) = delete;
    FeedRefresh& operator=(const FeedRefresh&) = delete;

    // Ends once with what `read` makes of the answer, or, when the patience is over before that is done, of a response
    // without a body whose problem says so. What comes later is dropped.
    void start(const HttpRequest& request, const Read& read);
    bool running() const { return box_ != nullptr; }

private:
    void finish();
    void drop();

    HttpClient& client_;
    Later later_;
    std::shared_ptr<ResponseBox> box_;
};

}  // namespace corvane
