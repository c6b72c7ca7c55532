// Makes a database ready for use.
#pragma once

#include <string>

namespace corvane::directory {

// Makes the folder and the file of SQLite when there are none, runs the migrations, and fills a database that was empty
// with the starter set. Throws DatabaseError.
void prepareDatabase(const std::string& location);

}  // namespace corvane::directory
