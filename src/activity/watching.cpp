#include "activity/watching.h"

#include <fmt/core.h>

#include <algorithm>
#include <functional>

namespace corvane {

namespace {

constexpr std::string_view key = "watched";
constexpr std::size_t toldOneByOne = 3;

}  // namespace

Watching::Watching(Display& display, Lists& lists, Voice& voice, NotificationCenter& notices, SettingsStore& settings,
                   Scheduler& scheduler)
    : display_(display), lists_(lists), voice_(voice), notices_(notices), settings_(settings), tasks_(scheduler) {}

void Watching::restore() {
    list_ = WatchList::from(settings_.text(key).value_or(""));
    noteEntries();
}

void Watching::add(TextField& sender) {
    const std::string entry = sender.stringValue();
    const std::string problem = list_.add(entry);
    display_.watchNoticeField.setStringValue(problem);
    if (!problem.empty()) return;
    display_.announcements.say("Watching for " + entry);
    sender.endEditing();
    sender.setStringValue("");
    settings_.setText(key, list_.text());
    noteEntries();
}

void Watching::remove(Button& sender) {
    const auto row = static_cast<std::size_t>(sender.tag());
    if (row >= list_.entries().size()) return;
    display_.announcements.say("No longer watching for " + list_.entries()[row]);
    list_.remove(row);
    settings_.setText(key, list_.text());
    noteEntries();
}

// Whoever is on the air at this moment is listed; the operator, who has just typed, need not be told.
void Watching::noteEntries() {
    display_.watchListTable.reloadData();
    showRows();
    for (const Spot& spot : spots_) told_[{spot.list, spot.facts.name}] = {spot.facts.hertz, tasks_.now()};
}

// Of each watched station the newest spot, if it has not closed.
std::vector<Watching::Spot> Watching::spotsOf(Feed list) const {
    std::map<std::string, Spot> newest;
    const FeedList& rows = lists_.state().*listFeed(list).list;
    const long long since = lists_.state().minutesSince(list, tasks_.now());
    for (std::size_t row = 0; row < rows.size() && !list_.entries().empty(); ++row) {
        auto facts = rowFacts(list, rows[row]);
        if (!facts || !list_.watches(facts->name, facts->reference)) continue;
        if (facts->minutes) *facts->minutes += since;
        Spot spot{list, static_cast<int>(row), std::move(*facts)};
        const auto known = newest.find(spot.facts.name);
        if (known == newest.end())
            newest.emplace(spot.facts.name, std::move(spot));
        else if (spot.age() < known->second.age())
            known->second = std::move(spot);
    }
    std::vector<Spot> spots;
    for (auto& [call, spot] : newest)
        if (!saysQrt(list, rows[static_cast<std::size_t>(spot.row)])) spots.push_back(std::move(spot));
    return spots;
}

void Watching::showRows() {
    spots_.clear();
    for (const Feed list : {Feed::pota, Feed::sota})
        for (Spot& spot : spotsOf(list)) spots_.push_back(std::move(spot));
    std::ranges::stable_sort(spots_, {}, &Spot::age);
    display_.watchTable.reloadData();
}

void Watching::look(Feed list) {
    if (!listFeed(list).hasSpots) return;
    showRows();
    std::erase_if(told_, [now = tasks_.now()](const auto& each) { return now - each.second.seen > forgottenAfter; });
    std::vector<Spot> appeared, moved;
    for (const Spot& spot : spots_) {
        if (spot.list != list) continue;
        const auto [told, isNew] = told_.try_emplace({list, spot.facts.name}, Told{spot.facts.hertz, tasks_.now()});
        told->second.seen = tasks_.now();
        const bool elsewhere = std::abs(told->second.hertz - spot.facts.hertz) >= anotherFrequency;
        if (elsewhere) told->second.hertz = spot.facts.hertz;
        if (isNew) appeared.push_back(spot);
        if (elsewhere) moved.push_back(spot);
    }
    tell(appeared, moved);
}

// One notice, one sound and one spoken line for all that a list brings.
void Watching::tell(const std::vector<Spot>& appeared, const std::vector<Spot>& moved) {
    const std::size_t number = appeared.size() + moved.size();
    if (number == 0) return;
    std::string title, text;
    const auto add = [&](const std::vector<Spot>& spots, std::string_view what) {
        for (const Spot& spot : spots) {
            title.append(title.empty() ? "" : ", ").append(spot.facts.name);
            text += fmt::format("{}{} {} {}", text.empty() ? "" : ". ", spot.facts.name, what,
                                frequencyText(spot.facts.hertz));
            for (const std::string& more : {spot.facts.mode, spot.facts.reference})
                if (!more.empty()) text += ", " + more;
        }
    };
    if (number > toldOneByOne) {
        title = fmt::format("{} watched stations", number);
        text = title + " have come on the air or moved";
    } else {
        add(appeared, "is on");
        add(moved, "has gone to");
    }
    notices_.deliver({title, text + ".", true}, [](NotificationId) {});
    voice_.playSystemSound("Tink");
    voice_.speak(text);
}

// The spot may have gone to another row since its own was drawn.
void Watching::goWatchTune(Button& sender) {
    const auto row = static_cast<std::size_t>(sender.tag());
    if (row >= spots_.size()) return;
    const Spot spot = spots_[row];
    const std::vector<Spot> now = spotsOf(spot.list);
    const auto found = std::ranges::find_if(now, [&spot](const Spot& each) {
        return each.facts.name == spot.facts.name && each.facts.hertz == spot.facts.hertz;
    });
    if (found == now.end()) return;
    const ListFeed& list = listFeed(spot.list);
    TableView& table = display_.*list.table;
    table.pressCell(found->row, table.columnWithIdentifier(list.tuneColumn));
}

int Watching::numberOfRows(const TableView& table) const {
    return static_cast<int>(&table == &display_.watchTable ? spots_.size() : list_.entries().size());
}

TableCell Watching::viewFor(const TableView& table, int row, int column) const {
    const auto index = static_cast<std::size_t>(row);
    if (&table == &display_.watchListTable) return TextCell{list_.entries()[index]};
    const Spot& spot = spots_[index];
    const std::string_view shown = table.column(column).identifier;
    const auto text = [&]() -> std::string {
        if (shown == "activator") return spot.facts.name;
        if (shown == "frequency") return fmt::format("{:.1f}", static_cast<double>(spot.facts.hertz) / 1e3);
        if (shown == "mode") return spot.facts.mode;
        if (shown == "kind") return spot.list == Feed::sota ? "SOTA" : "POTA";
        if (shown == "reference") return spot.facts.reference;
        if (shown == "name") return spot.facts.place;
        if (shown == "last") return spot.facts.minutes ? fmt::format("{} min", *spot.facts.minutes) : "";
        return spot.facts.comment;
    };
    return TextCell{text()};
}

}  // namespace corvane
