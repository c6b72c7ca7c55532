// corvane-directory: the nets directory, the check-ins, the medium-wave stations and the help pages, over HTTP.
#include <QCoreApplication>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "catalogue_file.h"
#include "check_in_writer.h"
#include "directory_reader.h"
#include "directory_site.h"
#include "documents.h"
#include "new_database.h"
#include "options.h"

namespace corvane::directory {

namespace {

constexpr int failed = 1;
constexpr int notUnderstood = 2;

Seconds now() { return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now()); }

// Blocked in all threads, so that serve() can wait for them.
sigset_t blockStopSignals() {
    std::signal(SIGPIPE, SIG_IGN);
    sigset_t stops;
    sigemptyset(&stops);
    sigaddset(&stops, SIGTERM);
    sigaddset(&stops, SIGINT);
    pthread_sigmask(SIG_BLOCK, &stops, nullptr);
    return stops;
}

// The members end in the reverse order: first the server, then what its last requests wait for.
int serve(const Options& options) {
    const sigset_t stopSignals = blockStopSignals();
    Log log(std::cout);
    prepareDatabase(options.database);
    const Documents documents(options.documents);
    if (documents.empty()) log.line("documents", {{"problem", "none found"}, {"folder", options.documents}});
    std::atomic<long long> changes = 0;
    CheckInWriter writer(options.database, now, changes, log);
    DirectoryReader reader(options.database, now, changes, log);
    DirectorySite site(writer, reader, documents, options.requestsAMinute);
    WebServer server(options.server, site, log);
    log.line("start", {{"version", CORVANE_VERSION}, {"address", options.server.address}, {"port", server.port()}});
    const timespec second{1, 0};
    Seconds cleaned{};
    int signal = -1;
    while ((signal = sigtimedwait(&stopSignals, nullptr, &second)) < 0) {
        server.closeLateConnections();
        if (now() - cleaned < std::chrono::hours(1)) continue;
        writer.forgetOldSessions();
        cleaned = now();
    }
    log.line("stop", {{"signal", signal}});
    return 0;
}

template <class Entry>
int import(const Options& options, CatalogueFile<Entry> (*read)(std::string_view text)) {
    std::ifstream stream(options.file, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (!stream) {
        std::cerr << options.file << " cannot be read.\n";
        return failed;
    }
    const CatalogueFile<Entry> file = read(text);
    for (const std::string& problem : file.problems) std::cerr << options.file << ": " << problem << '\n';
    if (!file.problems.empty()) {
        std::cerr << "Nothing was imported.\n";
        return failed;
    }
    prepareDatabase(options.database);
    DirectoryStore store(options.database);
    Transaction transaction(store.database());
    store.replace(file.entries);
    transaction.commit();
    std::cout << file.entries.size() << " imported\n";
    return 0;
}

int run(const Options& options) {
    switch (options.command) {
        case Options::Command::serve:
            return serve(options);
        case Options::Command::importNets:
            return import(options, readNets);
        case Options::Command::importStations:
            return import(options, readStations);
        case Options::Command::exportNets:
            prepareDatabase(options.database);
            std::cout << writeNets(DirectoryStore(options.database).nets());
            return 0;
        case Options::Command::exportStations:
            prepareDatabase(options.database);
            std::cout << writeStations(DirectoryStore(options.database).stations());
            return 0;
        case Options::Command::help:
            std::cout << helpText();
            return 0;
        case Options::Command::version:
            std::cout << "corvane-directory " << CORVANE_VERSION << '\n';
            return 0;
    }
    return notUnderstood;
}

}  // namespace

}  // namespace corvane::directory

int main(int argc, char** argv) {
    using namespace corvane::directory;
    const QCoreApplication application(argc, argv);  // finds the database drivers
    try {
        return run(optionsFrom(argc, argv));
    } catch (const std::invalid_argument& error) {
        std::cerr << error.what() << '\n';
        return notUnderstood;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return failed;
    }
}
