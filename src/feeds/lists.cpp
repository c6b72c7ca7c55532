// Fetching the on-line lists: the list is emptied, the answer to one request is decoded into it, and the line beside it
// shows the time and what went wrong. A failure opens no box and is not retried.
#include "feeds/lists.h"

#include <algorithm>
#include <utility>

#include "app/operator_key.h"
#include "feeds/clock_time.h"
#include "feeds/feed_cells.h"
#include "wire/utf8.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr auto aMinute = std::chrono::minutes(1);

// Why a body without a problem gave no rows; empty for a list that has none.
std::string problemOfNoRows(std::string_view body) {
    if (body.empty()) return "an empty answer";
    const std::string_view start = trimmed(body).substr(0, 15);
    const bool page = start.starts_with("<!DOCTYPE html") || start.starts_with("<!doctype html") ||
                      start.starts_with("<html") || start.starts_with("<HTML");
    return page ? "unreadable: a web page" : "";
}

// The result of fetching a list. It is made on any thread.
struct ListAnswer {
    FeedList rows;
    std::size_t found = 0;   // rows of the answer; those beyond mostRows are left out
    std::string unreadable;  // why the body could not be decoded; empty: it could
    std::string problem;     // why there are no rows, for the operator
};

// An error page has a body, too: it is decoded like any other, and gives no rows.
ListAnswer listAnswer(const ListFeed& feed, const HttpResponse& response, Instant now) {
    DecodedFeed decoded = response.body.empty() ? DecodedFeed{} : feed.decode(response.body, now);
    ListAnswer answer{std::move(decoded.rows), 0, decoded.problem, response.problem};
    answer.found = answer.rows.size();
    if (answer.found > mostRows) {
        answer.rows.resize(mostRows);
        answer.rows.shrink_to_fit();
    }
    if (answer.problem.empty()) answer.problem = std::move(decoded.problem);
    if (answer.problem.empty() && answer.found == 0) answer.problem = problemOfNoRows(response.body);
    return answer;
}

std::string countText(const ListAnswer& answer, std::string_view noun) {
    std::string text = std::to_string(answer.rows.size());
    if (answer.found > answer.rows.size()) text += " of " + std::to_string(answer.found);
    return text.append(" ").append(noun.substr(0, noun.size() - (answer.found == 1 ? 1 : 0)));
}

}  // namespace

Lists::Lists(Display& display, Link& link, const Mirror& mirror, Voice& voice, const Surroundings& surroundings)
    : display_(display),
      link_(link),
      mirror_(mirror),
      voice_(voice),
      around_(surroundings),
      tasks_(surroundings.scheduler) {
    for (std::size_t i = 0; i < listFeeds.size(); ++i) refreshes_.emplace_back(around_.http, tasks_);
}

void Lists::setRows(const ListFeed& feed, FeedList rows) {
    const bool ages = feed.hasSpots && !rows.empty();
    state_.*feed.list = std::move(rows);
    state_.cameAt[static_cast<std::size_t>(feed.feed)] = tasks_.now();
    (display_.*feed.table).reloadData();
    if (!ages || std::exchange(agesCount_, true)) return;
    tasks_.after(aMinute, [this] { countAges(); });
}

void Lists::countAges() {
    agesCount_ = false;
    for (const ListFeed& feed : listFeeds) {
        if (!feed.hasSpots || (state_.*feed.list).empty()) continue;
        (display_.*feed.table).reloadData();
        agesCount_ = true;
    }
    if (!agesCount_) return;
    onAges();
    tasks_.after(aMinute, [this] { countAges(); });
}

void Lists::fetchAll() {
    for (const ListFeed& row : listFeeds) fetch(row.feed);
}

FeedRefresh& Lists::refreshOf(Feed list) {
    return refreshes_[static_cast<std::size_t>(&listFeed(list) - listFeeds.data())];
}

void Lists::fetch(Feed list, RefreshEnd end) {
    const Question question = emptied(listFeed(list));
    refreshOf(list).start(question.request, question.read, std::move(end));
}

void Lists::hold(Feed list, RefreshEnd end) {
    const Question question = emptied(listFeed(list));
    refreshOf(list).hold(question.request, question.read, std::move(end));
}

void Lists::refresh(Feed list) {
    FeedRefresh& refresh = refreshOf(list);
    if (refresh.runs()) return;
    const Question asked = question(listFeed(list), Failure::leavesRows);
    refresh.start(asked.request, asked.read);
}

Lists::Question Lists::emptied(const ListFeed& row) {
    setRows(row, {});
    if (row.hasSpots) onAges();
    setStatus(row, "Refreshing\u2026");
    return question(row, Failure::empties);
}

// What to ask for the rows of a list, and how to read the answer.
Lists::Question Lists::question(const ListFeed& row, Failure failure) {
    HttpRequest request;
    request.url = std::string(around_.hosts.*row.host).append(row.path);
    if (row.feed == Feed::nets) request.key = keptOperatorKey(around_.settings);
    request.ignoreCaches = row.ignoreCaches;
    const auto read = [this, &row, failure, now = tasks_.now()](const HttpResponse& response) -> HttpClient::Rest {
        return [this, &row, failure, answer = listAnswer(row, response, now)]() mutable {
            if (!answer.unreadable.empty()) around_.log.line(std::string(row.path) + ": " + answer.unreadable);
            const bool arrived = answer.problem.empty();
            std::string line =
                clockTime(tasks_.now()) + ": " + (arrived ? countText(answer, row.noun) : answer.problem);
            const bool keeps = !arrived && failure == Failure::leavesRows && !(state_.*row.list).empty();
            if (keeps)
                line += "; the list is that of " + clockTime(state_.cameAt[static_cast<std::size_t>(row.feed)]);
            else
                setRows(row, std::move(answer.rows));
            setStatus(row, std::move(line));
            onFetched(row.feed, arrived);
        };
    };
    return {request, read};
}

void Lists::setStatus(const ListFeed& feed, std::string line) {
    status_[static_cast<std::size_t>(feed.feed)] = std::move(line);
    showStatus(feed);
}

void Lists::showDue(const ListFeed& list, std::optional<std::chrono::system_clock::time_point> due) {
    next_[static_cast<std::size_t>(list.feed)] = due ? " \u2014 next at " + clockTime(*due) : "";
    showStatus(list);
}

void Lists::showStatus(const ListFeed& feed) {
    const auto index = static_cast<std::size_t>(feed.feed);
    (display_.*feed.status).setStringValue(status_[index] + next_[index]);
}

int Lists::numberOfRows(const TableView& table) const {
    const ListFeed* feed = feedOf(display_, table);
    return feed ? static_cast<int>((state_.*feed->list).size()) : 0;
}

TableCell Lists::viewFor(const TableView& table, int row, int column) const {
    const ListFeed* feed = feedOf(display_, table);
    if (!feed) return {};
    const FeedRow& listed = (state_.*feed->list)[static_cast<std::size_t>(row)];
    return feedTableCell(feed->feed, table.column(column).identifier, listed, around_.hosts,
                         state_.minutesSince(feed->feed, tasks_.now()));
}

}  // namespace corvane
