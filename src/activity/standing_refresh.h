// An operator's standing order: the lists that are looked at or watched are fetched again every so many minutes.
#pragma once

#include <array>
#include <chrono>
#include <functional>
#include <random>

#include "display/display.h"
#include "feeds/lists.h"
#include "platform/scheduler.h"
#include "platform/settings_store.h"
#include "platform/tasks.h"

namespace corvane {

class StandingRefresh {
public:
    using Instant = std::chrono::system_clock::time_point;

    // After so many failures in a row the wait no longer grows.
    static constexpr std::chrono::minutes longestWait{30};

    StandingRefresh(Display& display, Lists& lists, SettingsStore& settings, Scheduler& scheduler);

    void restore();
    void chooseInterval(PopUpButton& sender);

    // A list has been fetched, by whatever reason: its next turn counts from now.
    void noteFetched(Feed list, bool arrived);
    // Another page is in sight, the band map has been shown or hidden, something is watched or no longer.
    void lookAgain();
    // Whether the window can be seen at all.
    void setInSight(bool inSight);
    // Whether this list is wanted though nobody looks at it.
    std::function<bool(Feed list)> isWatched = [](Feed) { return false; };

private:
    struct Turn {
        Instant due{};
        int failures = 0;  // in a row
    };
    Turn& turnOf(Feed list) { return turns_[static_cast<std::size_t>(list)]; }
    bool wanted(const ListFeed& list) const;
    bool lookedAt(const ListFeed& list) const;
    void plan(const ListFeed& list);
    void show();
    void fetchDue();
    void wakeUp();

    Display& display_;
    Lists& lists_;
    SettingsStore& settings_;
    Tasks tasks_;
    std::minstd_rand random_;  // spreads the requests of many operators
    std::chrono::minutes interval_{0};
    std::array<Turn, listFeeds.size()> turns_;  // by Feed
    Instant wakeUp_{};                          // the only task that counts
    bool inSight_ = true;
};

}  // namespace corvane
