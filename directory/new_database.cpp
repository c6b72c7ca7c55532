#include "new_database.h"

#include <sys/stat.h>

#include <filesystem>

#include "catalogue_file.h"
#include "catalogue_import.h"
#include "directory_store.h"
#include "starter_set.h"

namespace corvane::directory {

void prepareDatabase(const DatabaseLocation& location, Database::Open open) {
    umask(077);  // confirmations are private
    const bool mayMake = open == Database::Open::orNewFile;
    if (mayMake && !location.isPostgres()) {
        std::error_code error;  // opening the file will report it
        std::filesystem::create_directories(std::filesystem::path(location.path()).parent_path(), error);
    }
    {
        Database database(location, open);
        if (!mayMake && !database.hasTable("migrations"))
            throw DatabaseError(location.name() + " is no directory's database.", "failed");
        migrate(database);
    }
    DirectoryStore store(location);
    if (store.revision() < 1) replaceNets(store.database(), readNets(starterNets).entries, {});
    if (store.revision() < 2) replaceStations(store.database(), readStations(starterStations).entries);
}

}  // namespace corvane::directory
