#include "catalogue_commands.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <ostream>
#include <set>
#include <stdexcept>

#include "catalogue_file.h"
#include "catalogue_import.h"
#include "directory_store.h"
#include "new_database.h"

namespace corvane::directory {

namespace {

std::string textOf(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (!stream) throw std::runtime_error(file + " cannot be read.");
    return text;
}

template <class Entry>
std::vector<Entry> entriesOf(const CatalogueFile<Entry>& file, const std::string& name) {
    std::string problems;
    for (const std::string& problem : file.problems) problems += name + ": " + problem + '\n';
    if (!problems.empty()) throw std::runtime_error(problems + "Nothing was imported.");
    return file.entries;
}

std::string identity(const Net& net) { return net.id; }
std::string identity(const Station& station) { return station.callSign + ' ' + station.frequency; }

template <class Entry>
void checkSize(const std::vector<Entry>& before, const std::vector<Entry>& after) {
    std::set<std::string> kept;
    for (const Entry& entry : after) kept.insert(identity(entry));
    const auto gone =
        std::ranges::count_if(before, [&](const Entry& entry) { return !kept.contains(identity(entry)); });
    if (!after.empty() && 2 * gone <= static_cast<std::ptrdiff_t>(before.size())) return;
    throw std::runtime_error("Nothing was imported: this file would remove " + std::to_string(gone) + " of " +
                             std::to_string(before.size()) + " entries. If that is meant, add --replace.");
}

}  // namespace

void importList(const DatabaseLocation& database, const Import& import, Seconds now, std::ostream& report) {
    const auto replace = [&]<class Entry>(const CatalogueFile<Entry>& file, auto before, auto store) {
        const std::vector<Entry> entries = entriesOf(file, import.file);
        prepareDatabase(database);
        DirectoryStore directory(database);
        if (!import.mayShrink) checkSize(before(directory), entries);
        store(directory.database(), entries);
        report << entries.size() << " imported\n";
    };
    const std::string text = textOf(import.file);
    if (import.list == List::nets)
        replace(
            readNets(text), [](DirectoryStore& store) { return store.nets(); },
            [now](Database& to, const std::vector<Net>& nets) { replaceNets(to, nets, now); });
    else
        replace(
            readStations(text), [](DirectoryStore& store) { return store.stations(); }, replaceStations);
}

void exportList(const DatabaseLocation& database, List list, std::ostream& file) {
    prepareDatabase(database, Database::Open::existing);
    DirectoryStore store(database);
    file << (list == List::nets ? writeNets(store.nets()) : writeStations(store.stations())) << std::flush;
    if (!file) throw std::runtime_error("The list could not be written to its end.");
}

}  // namespace corvane::directory
