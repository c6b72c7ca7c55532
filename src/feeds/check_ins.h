// Check-ins: the operator confirms a net, or takes a confirmation back.
#pragma once

#include <deque>
#include <memory>

#include "app/service_hosts.h"
#include "app/voice.h"
#include "feeds/check_in.h"
#include "feeds/lists.h"
#include "platform/http_client.h"
#include "platform/settings_store.h"
#include "platform/tasks.h"

namespace corvane {

// They leave one after the other: each waits until the one before it has been answered or has failed. So the directory
// stores them in the order of the presses.
class CheckIns {
public:
    CheckIns(Lists& lists, Voice& voice, HttpClient& http, SettingsStore& settings, Scheduler& scheduler,
             const ServiceHosts& hosts);

    // The sender's tag is the row of the net.
    void goNetsConfirm(Button& sender);
    void goNetsUnconfirm(Button& sender);

private:
    void begin(int row, CheckIn::Kind kind);
    void take(const std::shared_ptr<CheckIn>& checkIn, CheckIn::Event event);
    void post(const std::shared_ptr<CheckIn>& checkIn);
    void sendNext();

    struct Post {
        HttpRequest request;
        std::shared_ptr<CheckIn> checkIn;
    };

    Lists& lists_;
    Voice& voice_;
    HttpClient& http_;
    SettingsStore& settings_;
    const ServiceHosts& hosts_;
    Tasks tasks_;
    std::deque<Post> posts_;   // the first one is under way
    bool retracting_ = false;  // its refresh of the list is under way
};

}  // namespace corvane
