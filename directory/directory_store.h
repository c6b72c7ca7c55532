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
    explicit DirectoryStore(const DatabaseLocation& location) : database_(location) {}

    Database& database() { return database_; }

    // In the order of the import.
    std::vector<Net> nets();
    std::vector<Station> stations();
    // 0 until the first import, and a new number after each.
    long long revision();

    // Within a transaction. For each check-in whether its net is known. Confirming or retracting twice has the effect
    // of once. Rows are locked in an order that all services share, so that two of them never wait for each other.
    std::vector<bool> record(const std::vector<CheckIn>& checkIns, Seconds now);
    // Of sessions that have not ended at `now`.
    std::vector<Confirmation> confirmationsOf(const std::string& operatorKey, Seconds now);
    std::vector<SessionCount> counts(Seconds now);
    // Deletes a part of the sessions that began before `time`, in a transaction of its own that takes a few
    // milliseconds. Whether there may be more.
    bool forgetSomeBefore(Seconds time);
    // Fails when no check-in can be stored. Writes to the disk.
    void checkHealth();

private:
    std::optional<Seconds> nextSessionOf(const std::string& net, Seconds now);

    Database database_;
    Statement timeOfNet_{database_,
                         "SELECT utc, days FROM nets WHERE id = ? AND list = (SELECT nets_list FROM catalogue)"};
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
