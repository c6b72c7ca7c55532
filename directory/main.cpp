// corvane-directory: the nets directory, the check-ins, the medium-wave stations and the help pages, over HTTP.
#include <QCoreApplication>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "catalogue_file.h"
#include "directory_service.h"
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

int serve(const Options& options) {
    const sigset_t stopSignals = blockStopSignals();
    Log log(std::cout);
    prepareDatabase(options.service.database);
    DirectoryService service(options.service, now, log);
    if (!service.hasDocuments()) log.line("documents", {{"missing in", options.service.documents}});
    log.line("start",
             {{"version", CORVANE_VERSION}, {"address", options.service.server.address}, {"port", service.port()}});
    constexpr timespec hour{3600, 0};
    int signal = -1;
    do {
        service.forgetOldSessions();
    } while ((signal = sigtimedwait(&stopSignals, nullptr, &hour)) < 0);
    const bool stopped = service.stop();
    log.line("stop", {{"signal", signal}, {"database", stopped ? "closed" : "stuck"}});
    if (!stopped) std::_Exit(0);  // waiting for the database could take for ever
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
    prepareDatabase(options.service.database);
    DirectoryStore store(options.service.database);
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
            prepareDatabase(options.service.database);
            std::cout << writeNets(DirectoryStore(options.service.database).nets());
            return 0;
        case Options::Command::exportStations:
            prepareDatabase(options.service.database);
            std::cout << writeStations(DirectoryStore(options.service.database).stations());
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
    const QCoreApplication application(argc, argv);  // Qt needs it to find the database drivers
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
