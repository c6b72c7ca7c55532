// The band conditions: fetching and showing them.
#pragma once

#include "app/service_hosts.h"
#include "display/display.h"
#include "feeds/feed_refresh.h"
#include "platform/tasks.h"

namespace corvane {

struct BandConditions;

class Conditions {
public:
    Conditions(Display& display, HttpClient& http, Scheduler& scheduler, const ServiceHosts& hosts);

    // `end` is called when the conditions of this fetch, or of one that has replaced it, are shown.
    void fetch(RefreshEnd end = {});

private:
    void show(const BandConditions& conditions);

    Display& display_;
    const ServiceHosts& hosts_;
    Tasks tasks_;
    FeedRefresh refresh_;
};

}  // namespace corvane
