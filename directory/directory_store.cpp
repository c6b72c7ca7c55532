#include "directory_store.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <tuple>

namespace corvane::directory {

namespace {

Seconds time(long long seconds) { return Seconds(std::chrono::seconds(seconds)); }
long long number(Seconds time) { return time.time_since_epoch().count(); }

}  // namespace

std::vector<Net> DirectoryStore::nets() {
    Statement rows(database_,
                   "SELECT id, name, frequency, utc, days, mode, url FROM nets "
                   "WHERE list = (SELECT nets_list FROM catalogue) ORDER BY position");
    std::vector<Net> nets;
    for (rows.run(); rows.next();)
        nets.push_back(
            {rows.text(0), rows.text(1), rows.text(2), rows.text(3), rows.text(4), rows.text(5), rows.text(6)});
    return nets;
}

std::vector<Station> DirectoryStore::stations() {
    Statement rows(database_,
                   "SELECT call_sign, frequency, city, power, url FROM stations "
                   "WHERE list = (SELECT stations_list FROM catalogue) ORDER BY position");
    std::vector<Station> stations;
    for (rows.run(); rows.next();)
        stations.push_back({rows.text(0), rows.text(1), rows.text(2), rows.text(3), rows.text(4)});
    return stations;
}

long long DirectoryStore::revision() {
    long long revision = 0;
    for (revision_.run(); revision_.next();) revision = revision_.number(0);
    return revision;
}

std::optional<Seconds> DirectoryStore::nextSessionOf(const std::string& net, Seconds now) {
    std::optional<Schedule> schedule;
    for (timeOfNet_.run(net); timeOfNet_.next();) schedule = scheduleOf(timeOfNet_.text(0), timeOfNet_.text(1));
    if (!schedule) return {};
    return nextSession(*schedule, now);
}

// The counts come last: a session's row is locked from there to the commit.
std::vector<bool> DirectoryStore::record(const std::vector<CheckIn>& checkIns, Seconds now) {
    const auto place = [](const CheckIn& one) { return std::tie(one.net, one.operatorKey); };
    std::vector<std::size_t> order(checkIns.size());
    std::iota(order.begin(), order.end(), 0U);
    std::ranges::stable_sort(order, {}, [&](std::size_t i) { return place(checkIns[i]); });
    std::vector<bool> known(checkIns.size());
    std::map<std::string, std::pair<std::optional<Seconds>, long long>> sessions;
    for (const std::size_t i : order) {
        const CheckIn& one = checkIns[i];
        const auto [session, isFirst] = sessions.try_emplace(one.net);
        auto& [starts, change] = session->second;
        if (isFirst) starts = nextSessionOf(one.net, now);
        known[i] = starts.has_value();
        if (!starts) continue;
        if (isFirst) addSession_.run(one.net, number(*starts));
        Statement& statement = one.confirms ? addConfirmation_ : removeConfirmation_;
        change += (one.confirms ? 1 : -1) * statement.run(one.operatorKey, one.net, number(*starts)).changedRows();
    }
    for (const auto& [net, session] : sessions)
        if (session.second != 0) count_.run(session.second, net, number(*session.first));
    return known;
}

std::vector<Confirmation> DirectoryStore::confirmationsOf(const std::string& operatorKey, Seconds now) {
    std::vector<Confirmation> confirmations;
    for (confirmationsOf_.run(operatorKey, number(now - sessionLength)); confirmationsOf_.next();)
        confirmations.push_back({confirmationsOf_.text(0), time(confirmationsOf_.number(1))});
    return confirmations;
}

std::vector<SessionCount> DirectoryStore::counts(Seconds now) {
    std::vector<SessionCount> counts;
    for (counts_.run(number(now - sessionLength)); counts_.next();)
        counts.push_back({counts_.text(0), time(counts_.number(1)), static_cast<int>(counts_.number(2))});
    return counts;
}

bool DirectoryStore::forgetSomeBefore(Seconds time) {
    constexpr long long step = 200;
    Transaction transaction(database_);
    Statement old(database_, "SELECT net, starts FROM sessions WHERE starts < ? ORDER BY net, starts LIMIT 1");
    if (!old.run(number(time)).next()) return false;
    const std::string net = old.text(0);
    const long long starts = old.number(1);
    while (old.next()) {
    }
    const int forgotten =
        Statement(database_,
                  "DELETE FROM confirmations WHERE net = ? AND starts = ? AND operator IN (SELECT "
                  "operator FROM confirmations WHERE net = ? AND starts = ? ORDER BY operator LIMIT ?)")
            .run(net, starts, net, starts, step)
            .changedRows();
    if (forgotten < step) Statement(database_, "DELETE FROM sessions WHERE net = ? AND starts = ?").run(net, starts);
    transaction.commit();
    return true;
}

void DirectoryStore::checkHealth() {
    Transaction transaction(database_);
    for (const char* const table : {"nets", "sessions", "confirmations"})
        database_.run((std::string("SELECT 1 FROM ") + table + " LIMIT 1").c_str());
    database_.run("UPDATE health SET checks = checks + 1");
    transaction.commit();
}

}  // namespace corvane::directory
