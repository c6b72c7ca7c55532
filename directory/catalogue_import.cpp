#include "catalogue_import.h"

#include <algorithm>
#include <functional>
#include <thread>

namespace corvane::directory {

namespace {

using namespace std::chrono_literals;

constexpr auto patience = 1min;  // an import waits longer for its turn than a check-in
constexpr long long stepRows = 500;

// Takes a lock for each step only, and leaves the others as much time as it has taken.
void inSteps(Database& database, const std::function<bool()>& step) {
    for (bool more = true; more;) {
        const auto start = std::chrono::steady_clock::now();
        Transaction transaction(database, patience);
        more = step();
        transaction.commit();
        if (more)
            std::this_thread::sleep_for(
                std::max<std::chrono::nanoseconds>(5ms, std::chrono::steady_clock::now() - start));
    }
}

long long numberOf(Database& database, const char* query) {
    Statement statement(database, query);
    statement.run().next();
    return statement.number(0);
}

long long newList(Database& database) {
    Transaction transaction(database, patience);
    database.run("UPDATE catalogue SET lists = lists + 1");
    const long long list = numberOf(database, "SELECT lists FROM catalogue");
    transaction.commit();
    return list;
}

template <class Entry, class Put>
void fill(Database& database, const std::vector<Entry>& entries, Put put) {
    std::size_t next = 0;
    inSteps(database, [&] {
        const std::size_t end = std::min<std::size_t>(entries.size(), next + stepRows);
        for (; next < end; ++next) put(static_cast<long long>(next) + 1, entries[next]);
        return next < entries.size();
    });
}

struct Lists {
    const char* current;  // the list's column in the catalogue
    const char* table;
};
constexpr Lists netLists{"nets_list", "nets"};
constexpr Lists stationLists{"stations_list", "stations"};

// Another import deletes the rows of all lists before its own, from the first one on.
void makeCurrent(Database& database, const Lists& lists, long long list, bool isEmpty) {
    Statement first(database,
                    (std::string("SELECT 1 FROM ") + lists.table + " WHERE list = ? AND position = 1").c_str());
    const bool isWhole = isEmpty || first.run(list).next();
    Statement change(database, (std::string("UPDATE catalogue SET revision = revision + 1, ") + lists.current +
                                " = ? WHERE " + lists.current + " < ?")
                                   .c_str());
    if (!isWhole || change.run(list, list).changedRows() == 0)
        throw DatabaseError("Nothing was imported: another import has ended meanwhile.", "failed");
}

void dropOlder(Database& database, const Lists& lists, long long list) {
    const std::string table = lists.table;
    Statement oldest(
        database, ("SELECT list, position FROM " + table + " WHERE list < ? ORDER BY list, position LIMIT 1").c_str());
    Statement remove(database, ("DELETE FROM " + table + " WHERE list = ? AND position < ?").c_str());
    inSteps(database, [&] {
        if (!oldest.run(list).next()) return false;
        const long long old = oldest.number(0);
        const long long position = oldest.number(1);
        while (oldest.next()) {
        }
        remove.run(old, position + stepRows);
        return true;
    });
}

struct Move {
    std::string net;
    std::string to;
    long long from;
    long long starts;
};

// The confirmations of a next session go with it.
void carry(Database& database, const Move& move) {
    Statement(database, "INSERT INTO sessions (net, starts, confirmed) VALUES (?, ?, 0) ON CONFLICT DO NOTHING")
        .run(move.to, move.starts);
    Statement(
        database,
        "INSERT INTO confirmations (operator, net, starts) SELECT operator, CAST(? AS TEXT), CAST(? AS BIGINT) FROM "
        "confirmations WHERE net = ? AND starts = ? ORDER BY operator ON CONFLICT DO NOTHING")
        .run(move.to, move.starts, move.net, move.from);
    Statement(database, "DELETE FROM sessions WHERE net = ? AND starts = ?").run(move.net, move.from);
    Statement(
        database,
        "UPDATE sessions SET confirmed = (SELECT count(*) FROM confirmations WHERE confirmations.net = sessions.net "
        "AND confirmations.starts = sessions.starts) WHERE net = ? AND starts = ?")
        .run(move.to, move.starts);
}

// The net of the new list that has the old one's id, or else its name.
constexpr const char* successor =
    "SELECT id, utc, days FROM nets WHERE list = ? AND id = ? UNION ALL SELECT id, utc, days FROM nets WHERE list = ? "
    "AND "
    "name = ? AND NOT EXISTS (SELECT 1 FROM nets WHERE list = ? AND id = ?) LIMIT 1";

void carrySessions(Database& database, long long from, long long to, Seconds now) {
    const auto seconds = [](Seconds time) { return static_cast<long long>(time.time_since_epoch().count()); };
    struct Session {
        std::string net;
        long long starts;
        std::string name;
    };
    std::vector<Session> next;  // read to the end first: PostgreSQL's driver keeps the rows of one statement at a time
    Statement sessions(database,
                       "SELECT sessions.net, starts, name, utc, days FROM sessions JOIN nets ON list = ? AND id = "
                       "sessions.net WHERE starts > ?");
    for (sessions.run(from, seconds(now - sessionLength)); sessions.next();) {
        const auto schedule = scheduleOf(sessions.text(3), sessions.text(4));
        if (schedule && seconds(nextSession(*schedule, now)) == sessions.number(1))
            next.push_back({sessions.text(0), sessions.number(1), sessions.text(2)});
    }
    Statement newNet(database, successor);
    std::vector<Move> moves;
    for (const auto& [id, starts, name] : next) {
        for (newNet.run(to, id, to, name, to, id); newNet.next();) {
            const auto schedule = scheduleOf(newNet.text(1), newNet.text(2));
            const long long then = schedule ? seconds(nextSession(*schedule, now)) : starts;
            const bool isSame = then == starts && newNet.text(0) == id;
            if (!isSame && std::abs(then - starts) < std::chrono::seconds(12h).count())
                moves.push_back({id, newNet.text(0), starts, then});
        }
    }
    std::ranges::sort(moves, {}, &Move::net);  // as check-ins lock them
    for (const Move& move : moves) carry(database, move);
}

}  // namespace

void replaceNets(Database& database, const std::vector<Net>& nets, Seconds now) {
    const long long list = newList(database);
    Statement put(database,
                  "INSERT INTO nets (list, position, id, name, frequency, utc, days, mode, url) "
                  "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)");
    fill(database, nets, [&](long long position, const Net& net) {
        put.run(list, position, net.id, net.name, net.frequency, net.utc, net.days, net.mode, net.url);
    });
    const long long old = numberOf(database, "SELECT nets_list FROM catalogue");
    const auto carryAll = [&] { return carrySessions(database, old, list, now), false; };
    inSteps(database, [&] {
        makeCurrent(database, netLists, list, nets.empty());
        return carryAll();
    });
    inSteps(database, carryAll);  // check-ins that were being stored on PostgreSQL meanwhile
    dropOlder(database, netLists, list);
}

void replaceStations(Database& database, const std::vector<Station>& stations) {
    const long long list = newList(database);
    Statement put(database,
                  "INSERT INTO stations (list, position, call_sign, frequency, city, power, url) "
                  "VALUES (?, ?, ?, ?, ?, ?, ?)");
    fill(database, stations, [&](long long position, const Station& station) {
        put.run(list, position, station.callSign, station.frequency, station.city, station.power, station.url);
    });
    inSteps(database, [&] { return makeCurrent(database, stationLists, list, stations.empty()), false; });
    dropOlder(database, stationLists, list);
}

}  // namespace corvane::directory
