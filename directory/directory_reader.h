// Reads the lists on its own thread.
#pragma once

#include <atomic>

#include "answer.h"
#include "batch_thread.h"
#include "check_in_writer.h"
#include "directory_pages.h"
#include "log.h"

namespace corvane::directory {

// Answers with 200, or with 503 when the database fails.
class DirectoryReader {
public:
    // Lists are read again when `changes` has changed, and every second for changes by other processes.
    DirectoryReader(DatabaseLocation location, Clock clock, const std::atomic<long long>& changes, Log& log);

    // From any thread. The key is an operator's, or empty.
    void nets(std::string operatorKey, Reply reply) {
        thread_.submit({List::nets, std::move(operatorKey), std::move(reply)});
    }
    void stations(Reply reply) { thread_.submit({List::stations, {}, std::move(reply)}); }
    bool stop(std::chrono::milliseconds patience) { return thread_.stop(patience); }

private:
    enum class List { nets, stations };
    struct Job {
        List list;
        std::string operatorKey;
        Reply reply;
    };
    // The lists last read, and the connection.
    struct Catalogue {
        explicit Catalogue(const DatabaseLocation& location) : store(location) {}
        void refresh(long long changesNow, Seconds now);

        DirectoryStore store;
        long long revision = -1;
        long long changes = -1;
        Seconds readAt{};
        std::vector<Net> nets;
        std::optional<NetsPage> netsPage;
        Page stations;
    };

    void answer(std::unique_ptr<Catalogue>& catalogue, std::vector<Job>& batch);

    const DatabaseLocation location_;
    const Clock clock_;
    const std::atomic<long long>& changes_;
    Log& log_;
    BatchThread<Job> thread_;  // the last member: it uses the others
};

}  // namespace corvane::directory
