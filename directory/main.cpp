// corvane-directory: the nets directory, the check-ins, the medium-wave stations and the help pages, over HTTP.
#include <unistd.h>

#include <QCoreApplication>

#include <csignal>
#include <cstdlib>
#include <iostream>

#include "catalogue_commands.h"
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
    Log log(STDOUT_FILENO);
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
    if (stopped) return 0;
    log.close();
    std::_Exit(0);  // waiting for the database could take for ever
}

int run(const Options& options) {
    switch (options.command) {
        case Options::Command::serve:
            return serve(options);
        case Options::Command::import:
            importList(options.service.database, {options.list, options.file, options.mayShrink}, now(), std::cout);
            return 0;
        case Options::Command::exportList:
            exportList(options.service.database, options.list, std::cout);
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
