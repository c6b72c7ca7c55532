// Makes a database ready for use.
#pragma once

#include <string>

namespace corvane::directory {

// Makes the SQLite file and its folder if they are missing, runs the migrations, and fills an empty database with the
// starter set. Throws DatabaseError.
void prepareDatabase(const std::string& location);

}  // namespace corvane::directory
