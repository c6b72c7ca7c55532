// Replaces a whole list of the directory, while a service goes on storing check-ins.
#pragma once

#include <vector>

#include "database.h"
#include "net.h"
#include "net_schedule.h"

namespace corvane::directory {

// The entries are stored in steps of a few milliseconds, and become the list at once at the end: all of them or none.
// A net keeps the confirmations of its next session when its id or its name stays, also when that session moves by less
// than half a day; those of a removed net are no longer found. Throws DatabaseError, also when another import ended
// meanwhile.
void replaceNets(Database& database, const std::vector<Net>& nets, Seconds now);
void replaceStations(Database& database, const std::vector<Station>& stations);

}  // namespace corvane::directory
