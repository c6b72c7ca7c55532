#include "new_database.h"

#include <sys/stat.h>

#include <filesystem>

#include "catalogue_file.h"
#include "directory_store.h"
#include "starter_set.h"

namespace corvane::directory {

void prepareDatabase(const std::string& location) {
    umask(077);  // confirmations are private
    if (!location.starts_with("postgresql://")) {
        std::error_code error;  // opening the file will report it
        std::filesystem::create_directories(std::filesystem::path(location).parent_path(), error);
    }
    {
        Database database(location);
        migrate(database);
    }
    DirectoryStore store(location);
    Transaction transaction(store.database());
    if (store.revision() == 0) {
        store.replace(readNets(starterNets).entries);
        store.replace(readStations(starterStations).entries);
    }
    transaction.commit();
}

}  // namespace corvane::directory
