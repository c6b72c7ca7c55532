// The on-line lists: fetching them, what their tables show, and tuning to a row.
//
//   fetching   a request, its answer, the line beside it   feeds/lists.cpp
//   tuning     the Tune key of a row                       feeds/tune_actions.cpp
#pragma once

#include <array>
#include <chrono>
#include <deque>
#include <functional>
#include <optional>
#include <string>

#include "app/service_hosts.h"
#include "display/display.h"
#include "feeds/feed_refresh.h"
#include "feeds/feed_table.h"
#include "interpret/mirror.h"
#include "platform/log.h"
#include "platform/settings_store.h"
#include "platform/tasks.h"
#include "radio/link.h"

namespace corvane {

class Lists {
public:
    // What the room uses of the system.
    struct Surroundings {
        HttpClient& http;
        Scheduler& scheduler;
        SettingsStore& settings;
        Log& log;
        const ServiceHosts& hosts;
    };

    Lists(Display& display, Link& link, const Mirror& mirror, Voice& voice, const Surroundings& surroundings);

    const FeedState& state() const { return state_; }
    // Puts these rows into a list's table.
    void setRows(const ListFeed& feed, FeedList rows);

    // Empties the list and fetches it again. `end` is called when the rows of this fetch, or of one that has replaced
    // it, are shown, 2.0 s from now at the latest.
    void fetch(Feed list, RefreshEnd end = {});
    // The same, but the request waits for release().
    void hold(Feed list, RefreshEnd end);
    void release(Feed list) { refreshOf(list).release(); }
    void fetchAll();  // in the order of listFeeds
    // Fetches it again, but leaves the rows in sight until others come; nothing while it is being fetched.
    void refresh(Feed list);
    // What is called after each fetch, with the rows shown; `arrived` is false if the service gave none.
    std::function<void(Feed list, bool arrived)> onFetched = [](Feed, bool) {};
    // What is called when the ages of spots have grown, or a list of them has been emptied.
    std::function<void()> onAges = [] {};
    // When the list is fetched next by itself; nothing: never.
    void showDue(const ListFeed& list, std::optional<std::chrono::system_clock::time_point> due);

    int numberOfRows(const TableView& table) const;  // 0 for a table of another room
    TableCell viewFor(const TableView& table, int row, int column) const;

    // The sender's tag is the row.
    void goPotaTune(Button& sender);
    void goSotaTune(Button& sender);
    void goNetLoggerTune(Button& sender);
    void goNetsTune(Button& sender);
    void goMWTune(Button& sender);

private:
    struct Question {
        HttpRequest request;
        FeedRefresh::Read read;
    };
    enum class Failure { empties, leavesRows };
    Question emptied(const ListFeed& feed);
    Question question(const ListFeed& feed, Failure failure);
    void setStatus(const ListFeed& feed, std::string line);
    void showStatus(const ListFeed& feed);
    void countAges();
    FeedRefresh& refreshOf(Feed list);
    void tuneTo(std::string command, const std::string& name);

    Display& display_;
    Link& link_;
    const Mirror& mirror_;
    Voice& voice_;
    Surroundings around_;
    Tasks tasks_;
    FeedState state_;
    std::deque<FeedRefresh> refreshes_;  // in the order of listFeeds
    // Beside each list, by Feed: the line, and what is said there about the next fetch.
    std::array<std::string, listFeeds.size()> status_;
    std::array<std::string, listFeeds.size()> next_;
    bool agesCount_ = false;
};

}  // namespace corvane
