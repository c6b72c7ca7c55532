// The commands that work on a list of the directory: import and export.
#pragma once

#include <iosfwd>
#include <string>

#include "database_location.h"
#include "net_schedule.h"

namespace corvane::directory {

enum class List { nets, stations };

// Each throws std::runtime_error, with a sentence for the user, when it fails.

// Replaces the whole list by a file, or changes nothing. A file that leaves out more than half of the present entries,
// or has none, is refused unless `mayShrink`.
struct Import {
    List list;
    std::string file;
    bool mayShrink;
};
void importList(const DatabaseLocation& database, const Import& import, Seconds now, std::ostream& report);

// Writes the list of an existing database as a file.
void exportList(const DatabaseLocation& database, List list, std::ostream& file);

}  // namespace corvane::directory
