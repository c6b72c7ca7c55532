// The directory's data: nets, stations, and who has confirmed which session of a net.
#pragma once

#include <vector>

#include "database.h"
#include "net.h"
#include "net_schedule.h"

namespace corvane::directory {

// An operator confirms the next session of a net, or retracts.
struct CheckIn {
    std::string operatorKey;
    std::string net;
    bool confirms;  // or retracts
};

struct SessionCount {
    std::string net;
    Seconds starts;
    int confirmed;  // operators
};

struct Confirmation {
    std::string net;
    Seconds starts;
};

// One connection to a migrated database, used in the thread that made it. Throws DatabaseError.
class DirectoryStore {
public:
    explicit DirectoryStore(const std::string& location) : database_(location) {}

    Database& database() { return database_; }

    // In the order of the import.
    std::vector<Net> nets();
    std::vector<Station> stations();
    // Within a transaction. Replaces the whole list. A net whose id stays keeps its confirmations; those of a removed
    // net are deleted.
    void replace(const std::vector<Net>& nets);
    void replace(const std::vector<Station>& stations);
    // 0 until the first replacement, and a new number after each.
    long long revision();

    // Within a transaction. False for an unknown net. Confirming or retracting twice has the effect of once.
    bool record(const CheckIn& checkIn, Seconds now);
    // Of sessions that have not ended at `now`.
    std::vector<Confirmation> confirmationsOf(const std::string& operatorKey, Seconds now);
    std::vector<SessionCount> counts(Seconds now);
    void forgetSessionsBefore(Seconds time);

private:
    bool insert(const CheckIn& checkIn, long long starts);
    bool remove(const CheckIn& checkIn, long long starts);
    void changeCatalogue() { database_.run("UPDATE catalogue SET revision = revision + 1"); }

    Database database_;
    Statement timeOfNet_{database_, "SELECT utc, days FROM nets WHERE id = ?"};
    Statement addSession_{database_,
                          "INSERT INTO sessions (net, starts, confirmed) VALUES (?, ?, 0) ON CONFLICT DO NOTHING"};
    Statement addConfirmation_{
        database_, "INSERT INTO confirmations (operator, net, starts) VALUES (?, ?, ?) ON CONFLICT DO NOTHING"};
    Statement removeConfirmation_{database_, "DELETE FROM confirmations WHERE operator = ? AND net = ? AND starts = ?"};
    Statement count_{database_, "UPDATE sessions SET confirmed = confirmed + ? WHERE net = ? AND starts = ?"};
    Statement confirmationsOf_{database_, "SELECT net, starts FROM confirmations WHERE operator = ? AND starts > ?"};
    Statement counts_{database_, "SELECT net, starts, confirmed FROM sessions WHERE starts > ?"};
    Statement revision_{database_, "SELECT revision FROM catalogue"};
};

}  // namespace corvane::directory
