// One refresh of a feed: a request, at most 2.0 s of patience, and what came of it.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/http_client.h"
#include "platform/tasks.h"

namespace corvane {

// Where what was made of an answer is put; one for every refresh, never used again.
struct ResponseBox {
    HttpClient::Rest show;
    HttpClient::Cancel cancel;
};

// Refreshes of one feed never overlap: a new one ends the one that is under way, whose answer nobody sees.
class FeedRefresh {
public:
    // Makes of an answer what is then to be done on the user-interface thread. Runs on any thread, also when nobody
    // waits for it any more, so it may use only what it owns.
    using Read = std::function<HttpClient::Rest(const HttpResponse& response)>;

    static constexpr Scheduler::Duration patience{2000};

    FeedRefresh(HttpClient& client, const Tasks& tasks) : client_(client), tasks_(tasks) {}
    ~FeedRefresh() { drop(); }
    FeedRefresh(const FeedRefresh&) = delete;
    FeedRefresh& operator=(const FeedRefresh&) = delete;

    // Ends once with what `read` makes of the answer, or, when the patience is over before that is done, of a response
    // without a body whose problem says so. What comes later is dropped. `then`, if any, is called after the end of
    // this refresh or of the one that takes its place.
    void start(const HttpRequest& request, const Read& read, std::function<void()> then = {});
    bool running() const { return box_ != nullptr; }

private:
    void finish();
    void drop();

    HttpClient& client_;
    const Tasks& tasks_;
    std::shared_ptr<ResponseBox> box_;
    std::vector<std::function<void()>> ends_;
};

}  // namespace corvane
