#include "directory_store.h"

#include <set>

namespace corvane::directory {

namespace {

Seconds time(long long seconds) { return Seconds(std::chrono::seconds(seconds)); }
long long number(Seconds time) { return time.time_since_epoch().count(); }

}  // namespace

std::vector<Net> DirectoryStore::nets() {
    Statement rows(database_, "SELECT id, name, frequency, utc, days, mode, url FROM nets ORDER BY position");
    std::vector<Net> nets;
    for (rows.run(); rows.next();)
        nets.push_back(
            {rows.text(0), rows.text(1), rows.text(2), rows.text(3), rows.text(4), rows.text(5), rows.text(6)});
    return nets;
}

std::vector<Station> DirectoryStore::stations() {
    Statement rows(database_, "SELECT call_sign, frequency, city, power, url FROM stations ORDER BY position");
    std::vector<Station> stations;
    for (rows.run(); rows.next();)
        stations.push_back({rows.text(0), rows.text(1), rows.text(2), rows.text(3), rows.text(4)});
    return stations;
}

void DirectoryStore::replace(const std::vector<Net>& nets) {
    std::set<std::string> gone;
    Statement ids(database_, "SELECT id FROM nets");
    for (ids.run(); ids.next();) gone.insert(ids.text(0));
    Statement put(database_,
                  "INSERT INTO nets (id, position, name, frequency, utc, days, mode, url) "
                  "VALUES (?, ?, ?, ?, ?, ?, ?, ?) ON CONFLICT (id) DO UPDATE SET "
                  "position = excluded.position, name = excluded.name, frequency = excluded.frequency, "
                  "utc = excluded.utc, days = excluded.days, mode = excluded.mode, url = excluded.url");
    long long position = 0;
    for (const Net& net : nets) {
        put.run(net.id, ++position, net.name, net.frequency, net.utc, net.days, net.mode, net.url);
        gone.erase(net.id);
    }
    Statement remove(database_, "DELETE FROM nets WHERE id = ?");
    for (const std::string& id : gone) remove.run(id);
    changeCatalogue();
}

void DirectoryStore::replace(const std::vector<Station>& stations) {
    database_.run("DELETE FROM stations");
    Statement put(database_,
                  "INSERT INTO stations (position, call_sign, frequency, city, power, url) VALUES (?, ?, ?, ?, ?, ?)");
    long long position = 0;
    for (const Station& station : stations)
        put.run(++position, station.callSign, station.frequency, station.city, station.power, station.url);
    changeCatalogue();
}

long long DirectoryStore::revision() {
    long long revision = 0;
    for (revision_.run(); revision_.next();) revision = revision_.number(0);
    return revision;
}

bool DirectoryStore::record(const CheckIn& checkIn, Seconds now) {
    std::optional<Schedule> schedule;
    for (timeOfNet_.run(checkIn.net); timeOfNet_.next();) schedule = scheduleOf(timeOfNet_.text(0), timeOfNet_.text(1));
    if (!schedule) return false;
    const long long starts = number(nextSession(*schedule, now));
    if (checkIn.confirms ? insert(checkIn, starts) : remove(checkIn, starts))
        count_.run(checkIn.confirms ? 1LL : -1LL, checkIn.net, starts);
    return true;
}

bool DirectoryStore::insert(const CheckIn& checkIn, long long starts) {
    addSession_.run(checkIn.net, starts);
    return addConfirmation_.run(checkIn.operatorKey, checkIn.net, starts).changedRows() > 0;
}

bool DirectoryStore::remove(const CheckIn& checkIn, long long starts) {
    return removeConfirmation_.run(checkIn.operatorKey, checkIn.net, starts).changedRows() > 0;
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

void DirectoryStore::forgetSessionsBefore(Seconds time) {
    Statement(database_, "DELETE FROM sessions WHERE starts < ?").run(number(time));
}

}  // namespace corvane::directory
