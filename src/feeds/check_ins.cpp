#include "feeds/check_ins.h"

#include <utility>

#include "app/operator_key.h"

namespace corvane {

using namespace std::chrono_literals;

CheckIns::CheckIns(Lists& lists, Voice& voice, HttpClient& http, SettingsStore& settings, Scheduler& scheduler,
                   const ServiceHosts& hosts)
    : lists_(lists), voice_(voice), http_(http), settings_(settings), hosts_(hosts), tasks_(scheduler) {}

void CheckIns::goNetsConfirm(Button& sender) { begin(sender.tag(), CheckIn::Kind::confirm); }
void CheckIns::goNetsUnconfirm(Button& sender) { begin(sender.tag(), CheckIn::Kind::retract); }

void CheckIns::begin(int row, CheckIn::Kind kind) {
    const FeedRow* net = rowAt(lists_.state().vqNetsArray, row, 7);
    if (!net) return;
    const auto checkIn = std::make_shared<CheckIn>(kind, (*net)[6], (*net)[0]);
    post(checkIn);
    take(checkIn, CheckIn::Event::begun);
    tasks_.after(checkIn->recordingTime(), [this, checkIn] { take(checkIn, CheckIn::Event::timePassed); });
}

void CheckIns::take(const std::shared_ptr<CheckIn>& checkIn, CheckIn::Event event) {
    switch (checkIn->take(event)) {
        case CheckIn::Next::nothing:
            break;
        case CheckIn::Next::announce:
            voice_.speak(checkIn->announcement());
            break;
        case CheckIn::Next::fetchList:
            // The refresh of a retraction shows this check-in, too, and must not be put off.
            if (!retracting_) lists_.fetch(Feed::nets);
            break;
        case CheckIn::Next::holdList:
            retracting_ = true;
            lists_.hold(Feed::nets, {.sound = {}, .then = [this, checkIn] {
                                         retracting_ = false;
                                         take(checkIn, CheckIn::Event::listShown);
                                     }});
            break;
        case CheckIn::Next::releaseList:
            lists_.release(Feed::nets);
    }
}

// The list that is fetched next shows whether it arrived.
void CheckIns::post(const std::shared_ptr<CheckIn>& checkIn) {
    HttpRequest request;
    request.method = "POST";
    request.url = hosts_.directory + "/netconf.php";
    request.timeout = 30s;
    request.ignoreCaches = true;
    request.contentType = "Application/json";
    request.key = operatorKey(settings_);
    request.body = checkIn->body(request.key);
    posts_.push_back({std::move(request), checkIn});
    if (posts_.size() == 1) sendNext();
}

void CheckIns::sendNext() {
    const auto answered = tasks_.guarded([this] {
        const auto checkIn = std::move(posts_.front().checkIn);
        posts_.pop_front();
        if (!posts_.empty()) sendNext();
        take(checkIn, CheckIn::Event::answered);
    });
    http_.send(posts_.front().request, [answered](const HttpResponse&) -> HttpClient::Rest { return answered; });
}

}  // namespace corvane
