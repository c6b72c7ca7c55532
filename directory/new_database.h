// Makes a database ready for use.
#pragma once

#include "database.h"

namespace corvane::directory {

// Runs the migrations and fills an empty database with the starter set. Makes an SQLite file that is missing, with its
// folder, unless only an `existing` database is wanted: then also a database of another kind is refused. Throws
// DatabaseError.
void prepareDatabase(const DatabaseLocation& location, Database::Open open = Database::Open::orNewFile);

}  // namespace corvane::directory
