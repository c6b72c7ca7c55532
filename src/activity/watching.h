// The stations that the operator looks for: told of once each when they come on the air or go to another frequency, and
// listed with a Tune key.
#pragma once

#include <chrono>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "activity/watch_list.h"
#include "feeds/lists.h"
#include "feeds/row_facts.h"
#include "platform/notification_center.h"

namespace corvane {

class Watching {
public:
    // A station that was told of is told of again after it has been off the lists for this long, or when it appears
    // this far from where it was.
    static constexpr std::chrono::minutes forgottenAfter{30};
    static constexpr long long anotherFrequency = 1000;  // hertz

    Watching(Display& display, Lists& lists, Voice& voice, NotificationCenter& notices, SettingsStore& settings,
             Scheduler& scheduler);

    void restore();
    void add(TextField& sender);       // the operator has typed an entry
    void remove(Button& sender);       // its tag is the row of watchListTable
    void goWatchTune(Button& sender);  // its tag is the row of watchTable; does what the Tune key of the spot does

    const WatchList& list() const { return list_; }
    bool watches(Feed list) const { return listFeed(list).hasSpots && !list_.entries().empty(); }
    // The rows of a list of spots are new.
    void look(Feed list);
    // The ages have grown, or a list has been emptied.
    void showRows();

    int numberOfRows(const TableView& table) const;
    TableCell viewFor(const TableView& table, int row, int column) const;

private:
    using Instant = std::chrono::system_clock::time_point;
    struct Spot {
        Feed list;
        int row;         // of its list
        RowFacts facts;  // with the age as it is now

        long long age() const { return facts.minutes.value_or(1'000'000); }  // minutes; an unknown one comes last
    };
    struct Told {
        long long hertz;
        Instant seen;
    };
    std::vector<Spot> spotsOf(Feed list) const;
    void noteEntries();
    void tell(const std::vector<Spot>& appeared, const std::vector<Spot>& moved);

    Display& display_;
    Lists& lists_;
    Voice& voice_;
    NotificationCenter& notices_;
    SettingsStore& settings_;
    Tasks tasks_;
    WatchList list_;
    std::vector<Spot> spots_;                            // what watchTable shows: of each station the newest spot
    std::map<std::pair<Feed, std::string>, Told> told_;  // by call
};

}  // namespace corvane
