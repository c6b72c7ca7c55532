// The whole service on one database. Takes requests while it exists.
#pragma once

#include "directory_site.h"

namespace corvane::directory {

class DirectoryService {
public:
    struct Options {
        DatabaseLocation database;  // prepared, see new_database.h
        std::string documents;      // folder
        int requestsAMinute = 0;
        WebServer::Options server;
    };

    // Throws std::runtime_error when it cannot listen.
    DirectoryService(const Options& options, const Clock& clock, Log& log)
        : documents_(options.documents),
          writer_(options.database, clock, changes_, log),
          reader_(options.database, clock, changes_, log),
          site_(writer_, reader_, documents_, options.requestsAMinute),
          server_(options.server, site_, log) {}

    int port() const { return server_.port(); }
    bool hasDocuments() const { return !documents_.empty(); }
    // To be called about once an hour.
    void forgetOldSessions() { writer_.forgetOldSessions(); }
    // Answers what is under way, and stores what it acknowledged. New requests get 503. False when the database does
    // not let go: then nothing that it holds was acknowledged, but destroying this object would wait for it.
    bool stop() {
        constexpr std::chrono::seconds patience{3};
        server_.stop();
        return writer_.stop(patience) && reader_.stop(patience);
    }

private:
    // Destroyed in reverse order: first the server, then what its last requests wait for.
    const Documents documents_;
    std::atomic<long long> changes_ = 0;
    CheckInWriter writer_;
    DirectoryReader reader_;
    DirectorySite site_;
    WebServer server_;
};

}  // namespace corvane::directory
