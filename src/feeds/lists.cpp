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

const ListFeed* feedOf(const Display& display, const TableView& table) {
    const auto feed =
        std::ranges::find_if(listFeeds, [&](const ListFeed& row) { return &(display.*row.table) == &table; });
    return feed == listFeeds.end() ? nullptr : &*feed;
}

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
    state_.*feed.list = std::move(rows);
    (display_.*feed.table).reloadData();
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

// Empties the list, and says what to ask for its new rows and how to read the answer.
Lists::Question Lists::emptied(const ListFeed& row) {
    setRows(row, {});
    (display_.*row.status).setStringValue("Refreshing\u2026");
    HttpRequest request;
    request.url = std::string(around_.hosts.*row.host).append(row.path);
    if (row.feed == Feed::nets) request.key = keptOperatorKey(around_.settings);
    request.ignoreCaches = row.ignoreCaches;
    const auto read = [this, &row, now = tasks_.now()](const HttpResponse& response) -> HttpClient::Rest {
        return [this, &row, answer = listAnswer(row, response, now)]() mutable {
            if (!answer.unreadable.empty()) around_.log.line(std::string(row.path) + ": " + answer.unreadable);
            const std::string line = answer.problem.empty() ? countText(answer, row.noun) : answer.problem;
            setRows(row, std::move(answer.rows));
            (display_.*row.status).setStringValue(clockTime(tasks_.now()) + ": " + line);
        };
    };
    return {request, read};
}

int Lists::numberOfRows(const TableView& table) const {
    const ListFeed* feed = feedOf(display_, table);
    return feed ? static_cast<int>((state_.*feed->list).size()) : 0;
}

TableCell Lists::viewFor(const TableView& table, int row, int column) const {
    const ListFeed* feed = feedOf(display_, table);
    if (!feed) return {};
    const FeedRow& listed = (state_.*feed->list)[static_cast<std::size_t>(row)];
    return feedTableCell(feed->feed, table.column(column).identifier, listed, around_.hosts);
}

}  // namespace corvane
