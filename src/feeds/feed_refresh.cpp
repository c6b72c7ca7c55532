#include "feeds/feed_refresh.h"

#include <utility>

namespace corvane {

void FeedRefresh::start(const HttpRequest& request, const Read& read, RefreshEnd end) {
    const bool held = box_ && box_->send;
    hold(request, read, std::move(end));
    if (!held) release();
}

void FeedRefresh::hold(const HttpRequest& request, const Read& read, RefreshEnd end) {
    if (end.sound) end_.sound = std::move(end.sound);
    if (end.then) end_.then = std::move(end.then);
    drop();
    const auto box = std::make_shared<ResponseBox>();
    box->show = read({{}, "no answer within 2 s"});
    box_ = box;
    // An answer counts only while its box is the current one.
    const std::weak_ptr<ResponseBox> current = box;
    box->send = [this, current, request, read] {
        box_->cancel = client_.send(request, [this, current, read](const HttpResponse& response) {
            return [this, current, show = read(response)]() mutable {
                const auto answered = current.lock();
                if (!answered || answered != box_) return;
                answered->cancel = {};
                answered->show = std::move(show);
                finish();
            };
        });
    };
    tasks_.after(patience, [this, current] {
        if (box_ && box_ == current.lock()) finish();
    });
}

void FeedRefresh::release() {
    if (box_ && box_->send) std::exchange(box_->send, {})();
}

void FeedRefresh::finish() {
    const auto box = std::exchange(box_, nullptr);
    if (box->cancel) box->cancel();
    box->show();
    const RefreshEnd end = std::exchange(end_, {});
    if (end.sound) end.sound();
    if (end.then) end.then();
}

void FeedRefresh::drop() {
    if (const auto box = std::exchange(box_, nullptr); box && box->cancel) box->cancel();
}

}  // namespace corvane
