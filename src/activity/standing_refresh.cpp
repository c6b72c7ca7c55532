#include "activity/standing_refresh.h"

#include <algorithm>
#include <string>
#include <utility>

#include "wire/wire_text.h"

namespace corvane {

using namespace std::chrono_literals;

namespace {

constexpr std::string_view key = "refreshEvery";  // minutes
constexpr std::array choices{0min, 1min, 2min, 5min, 10min};
constexpr int mostDoublings = 5;  // of the interval

}  // namespace

StandingRefresh::StandingRefresh(Display& display, Lists& lists, SettingsStore& settings, Scheduler& scheduler)
    : display_(display),
      lists_(lists),
      settings_(settings),
      tasks_(scheduler),
      random_(static_cast<unsigned>(tasks_.now().time_since_epoch().count())) {
    for (TabView* pages : {&display.mainTab, &display.listsTab}) pages->onSelect = [this] { lookAgain(); };
}

void StandingRefresh::restore() {
    const auto kept = std::ranges::find(choices, std::chrono::minutes(settings_.integer(key)));
    const auto choice = kept == choices.end() ? choices.begin() : kept;
    interval_ = *choice;
    display_.refreshEveryPopUpButton.selectItem(static_cast<int>(choice - choices.begin()));
    for (const ListFeed& list : listFeeds) plan(list);
    lookAgain();
}

void StandingRefresh::chooseInterval(PopUpButton& sender) {
    interval_ = choices.at(static_cast<std::size_t>(std::max(0, sender.indexOfSelectedItem())));
    settings_.setInteger(key, static_cast<int>(interval_.count()));
    for (const ListFeed& list : listFeeds) plan(list);
    lookAgain();
}

void StandingRefresh::noteFetched(Feed list, bool arrived) {
    int& failures = turnOf(list).failures;
    failures = arrived ? 0 : failures + 1;
    plan(listFeed(list));
    show();
}

// The wait after failures doubles; a list that its service changes seldom has an interval of its own. Nobody asks
// sooner than the interval says: what chance adds comes on top.
void StandingRefresh::plan(const ListFeed& list) {
    if (interval_ == 0min) return;
    Turn& turn = turnOf(list.feed);
    const int doublings = std::min(turn.failures, mostDoublings);
    const auto every = std::max(interval_, list.leastInterval);
    const auto wait = std::min<std::chrono::minutes>(every * (1 << doublings), std::max(every, longestWait));
    const auto spread = std::chrono::duration_cast<std::chrono::milliseconds>(wait) / 10;
    turn.due = tasks_.now() + wait + std::chrono::milliseconds(random_() % static_cast<unsigned>(spread.count()));
}

bool StandingRefresh::lookedAt(const ListFeed& list) const {
    if (!inSight_) return false;
    switch (display_.mainTab.indexOfSelectedItem()) {
        case Display::listsPage: {
            const int page = display_.listsTab.indexOfSelectedItem();
            return page == list.page || (page == Display::watchPage && list.hasSpots);
        }
        case Display::bandMapPage:
            return true;
        case Display::radioPage:
            return display_.menuItemPreferencesBandMap.checked();
        default:
            return false;
    }
}

bool StandingRefresh::wanted(const ListFeed& list) const { return lookedAt(list) || isWatched(list.feed); }

void StandingRefresh::setInSight(bool inSight) {
    if (std::exchange(inSight_, inSight) != inSight) lookAgain();
}

void StandingRefresh::lookAgain() {
    if (interval_ != 0min) fetchDue();
    show();
}

void StandingRefresh::show() {
    Instant next = Instant::max();
    for (const ListFeed& list : listFeeds) {
        const bool refreshes = interval_ != 0min && wanted(list);
        const Instant due = turnOf(list.feed).due;
        lists_.showDue(list, refreshes ? std::optional(due) : std::nullopt);
        if (refreshes) next = std::min(next, due);
    }
    if (next == Instant::max() || next == wakeUp_) return;
    wakeUp_ = next;
    const auto wait = std::chrono::ceil<Scheduler::Duration>(std::max(next - tasks_.now(), Instant::duration(0)));
    tasks_.after(wait, [this, next] {
        if (wakeUp_ == next) wakeUp();
    });
}

// It is time, whatever the clock says: it may have been set back meanwhile.
void StandingRefresh::wakeUp() {
    const auto back = std::exchange(wakeUp_, {}) - tasks_.now();
    if (back > 0s)
        for (Turn& turn : turns_) turn.due -= back;
    lookAgain();
}

// What is being fetched already counts as fetched.
void StandingRefresh::fetchDue() {
    for (const ListFeed& list : listFeeds) {
        Turn& turn = turnOf(list.feed);
        if (!wanted(list) || tasks_.now() < turn.due) continue;
        plan(list);
        lists_.refresh(list.feed);
    }
}

}  // namespace corvane
