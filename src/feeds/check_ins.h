// Check-ins: the operator confirms a net, or takes a confirmation back.
#pragma once

#include <memory>

#include "app/service_hosts.h"
#include "app/voice.h"
#include "feeds/check_in.h"
#include "feeds/lists.h"
#include "platform/http_client.h"
#include "platform/settings_store.h"
#include "platform/tasks.h"

namespace corvane {

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

    Lists& lists_;
    Voice& voice_;
    HttpClient& http_;
    SettingsStore& settings_;
    const ServiceHosts& hosts_;
    Tasks tasks_;
};

}  // namespace corvane
