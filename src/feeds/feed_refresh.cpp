#include "feeds/feed_refresh.h"

#include <utility>

namespace corvane {

void FeedRefresh::start(const HttpRequest& request, Handle handle) {
    drop();
    handle_ = std::move(handle);
    const auto box = std::make_shared<ResponseBox>();
    box->response.problem = "no answer within 2 s";
    box_ = box;
    const std::weak_ptr<ResponseBox> current = box;
    // Nobody waits for a box that is not the present one.
    box->cancel = client_.send(request, [this, current](HttpResponse response) {
        if (const auto answered = current.lock(); answered && answered == box_) {
            answered->cancel = {};
            answered->response = std::move(response);
            finish();
        }
    });
    later_(patience, [this, current] {
        if (box_ && box_ == current.lock()) finish();
    });
}

void FeedRefresh::finish() {
    const auto box = std::exchange(box_, nullptr);
    if (box->cancel) box->cancel();
    const Handle handle = std::exchange(handle_, {});
    handle(box->response);
}

void FeedRefresh::drop() {
    if (const auto box = std::exchange(box_, nullptr); box && box->cancel) box->cancel();
}

}  // namespace corvane
