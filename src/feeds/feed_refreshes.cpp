// Fetching the on-line lists: the list is emptied, the answer to one request is decoded into it, and the line beside it
// says when that was and what went wrong. Nothing pops up, nothing is tried again by itself.
#include <array>
#include <ctime>
#include <utility>

#include "app/operator_key.h"
#include "controller/serial_port_demo_controller.h"
#include "feeds/band_conditions.h"
#include "feeds/feed_table.h"
#include "wire/utf8.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

std::string clockTime(Instant when) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(when);
    std::tm utc{};
    gmtime_r(&seconds, &utc);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%H:%M UTC", &utc);
    return text.data();
}

Color conditionColor(std::string_view value) {
    if (value == "Good") return Color::green;
    return value == "Fair" ? Color::orange : Color::red;
}

// Why a body without a problem gave no rows; nothing for a list that is just empty.
std::string problemOfNoRows(std::string_view body) {
    if (body.empty()) return "an empty answer";
    const std::string_view start = trimmed(body).substr(0, 15);
    const bool page = start.starts_with("<!DOCTYPE html") || start.starts_with("<!doctype html") ||
                      start.starts_with("<html") || start.starts_with("<HTML");
    return page ? "unreadable: a web page" : "";
}

// What the answer of a list comes to. It is made on any thread.
struct ListAnswer {
    FeedList rows;
    std::size_t found = 0;   // rows of the answer; those beyond mostRows are left out
    std::string unreadable;  // why the body could not be read; empty: it could
    std::string problem;     // why there are no rows, for the operator
};

// An error page has a body, too: it is read like any other, and finds nothing.
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

constexpr std::size_t longestValue = 40;  // characters; what is longer is no value of the service

void show(TextField& field, std::string_view text, Color color) {
    field.setStringValue(utf8Prefix(text, longestValue));
    field.setTextColor(color);
}

}  // namespace

void SerialPortDemoController::fetchPotaSpots() { fetchList(Feed::pota); }
void SerialPortDemoController::fetchNetLoggerNets() { fetchList(Feed::netLogger); }
void SerialPortDemoController::fetchSotaSpots() { fetchList(Feed::sota); }
void SerialPortDemoController::fetchNets() { fetchList(Feed::nets); }
void SerialPortDemoController::fetchMWStations() { fetchList(Feed::mediumWave); }
void SerialPortDemoController::fetchBandConditions() { fetchConditions(); }

void SerialPortDemoController::fetchLists() {
    fetchPotaSpots();
    fetchNetLoggerNets();
    fetchSotaSpots();
    fetchNets();
    fetchMWStations();
}

FeedRefresh& SerialPortDemoController::refreshOf(Feed feed) { return feedRefreshes_[static_cast<std::size_t>(feed)]; }

void SerialPortDemoController::fetchList(Feed feed, std::function<void()> then) {
    const ListFeed& row = listFeed(feed);
    if (then) feedEnds_[static_cast<std::size_t>(feed)].push_back(std::move(then));
    (feeds.*row.list).clear();
    (display.*row.table).reloadData();
    (display.*row.status).setStringValue("Refreshing\u2026");
    HttpRequest request;
    request.url = std::string(hosts_.*row.host).append(row.path);
    if (feed == Feed::nets) request.url += keyQuery(userDefaults.text("operator").value_or(""));
    request.ignoreCaches = row.ignoreCaches;
    refreshOf(feed).start(request, [this, &row, now = platform_.scheduler.now()](const HttpResponse& response) {
        return [this, &row, answer = listAnswer(row, response, now)]() mutable {
            if (!answer.unreadable.empty()) platform_.log.line(std::string(row.path) + ": " + answer.unreadable);
            const std::string line = answer.problem.empty() ? countText(answer, row.noun) : answer.problem;
            feeds.*row.list = std::move(answer.rows);
            (display.*row.table).reloadData();
            (display.*row.status).setStringValue(clockTime(platform_.scheduler.now()) + ": " + line);
            endRefresh(row.feed);
        };
    });
}

void SerialPortDemoController::fetchConditions(std::function<void()> then) {
    if (then) feedEnds_[static_cast<std::size_t>(Feed::bandConditions)].push_back(std::move(then));
    HttpRequest request;
    request.url = hosts_.solarData + std::string(bandConditionsPath);
    display.bandStatusField.setStringValue("Refreshing\u2026");
    refreshOf(Feed::bandConditions).start(request, [this](const HttpResponse& response) {
        return [this, conditions = decodeBandConditions(response.body), problem = response.problem]() mutable {
            showBandConditions(conditions);
            if (problem.empty() && conditions == BandConditions{}) problem = "unreadable: not the lines of the service";
            display.bandStatusField.setStringValue(clockTime(platform_.scheduler.now()) +
                                                   (problem.empty() ? "" : ": " + problem));
            endRefresh(Feed::bandConditions);
        };
    });
}

void SerialPortDemoController::endRefresh(Feed feed) {
    for (const auto& then : std::exchange(feedEnds_[static_cast<std::size_t>(feed)], {})) then();
}

void SerialPortDemoController::showBandConditions(const BandConditions& conditions) {
    const std::array fields{&display.day8040Field,   &display.day3020Field,   &display.day1715Field,
                            &display.day1210Field,   &display.night8040Field, &display.night3020Field,
                            &display.night1715Field, &display.night1210Field};
    display.bandBox.setTitle("Band Conditions - " + std::string(utf8Prefix(conditions.heading, longestValue)));
    show(display.solarFluxField, conditions.solarFlux, Color::green);
    for (std::size_t i = 0; i < fields.size(); ++i)
        show(*fields[i], conditions.bands[i], conditionColor(conditions.bands[i]));
    const bool quiet = conditions.signalNoise == "S0-S1" || conditions.signalNoise == "S1-S2";
    show(display.signalNoiseField, conditions.signalNoise, quiet ? Color::green : Color::red);
    const bool closed = conditions.magicBand == "Band Closed";
    show(display.magicBandField, closed ? "Closed" : "Open", closed ? Color::red : Color::green);
}

// The key's refresh ends with a sound, a refresh by itself without one.
bool SerialPortDemoController::pressRefreshKey(Button& sender) {
    const auto sound = [this] { playSound("Funk"); };
    switch (sender.tag()) {
        case 810:
            fetchConditions(sound);
            break;
        case 811:
            fetchList(Feed::pota, sound);
            break;
        case 812:
            fetchList(Feed::netLogger, sound);
            break;
        case 813:
            fetchList(Feed::sota, sound);
            break;
        default:
            fetchList(Feed::nets, sound);
    }
    return false;
}

}  // namespace corvane
