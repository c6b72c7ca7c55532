// Stores check-ins on its own thread, and answers each once it is safe on disk.
#pragma once

#include <atomic>

#include "answer.h"
#include "batch_thread.h"
#include "directory_store.h"
#include "log.h"

namespace corvane::directory {

using Clock = std::function<Seconds()>;

class CheckInWriter {
public:
    // `changes` is incremented at each commit.
    CheckInWriter(std::string location, Clock clock, std::atomic<long long>& changes, Log& log);

    // From any thread. 200 once it is stored, 404 for a net that is not in the directory, 503 when the database fails.
    void record(CheckIn checkIn, Reply reply) { thread_.submit({std::move(checkIn), std::move(reply)}); }
    // Deletes sessions that ended days ago, with their confirmations.
    void forgetOldSessions() {
        thread_.submit({{}, [](const Answer&) {}});
    }
    bool stop(std::chrono::milliseconds patience) { return thread_.stop(patience); }

private:
    struct Job {
        std::optional<CheckIn> checkIn;  // none: delete old sessions
        Reply reply;
    };
    using Connection = std::unique_ptr<DirectoryStore>;

    bool connect(Connection& connection);
    void write(Connection& connection, std::vector<Job>& batch);
    void writeInOne(DirectoryStore& store, std::vector<Job>& batch);
    Answer write(DirectoryStore& store, const Job& job);

    const std::string location_;
    const Clock clock_;
    std::atomic<long long>& changes_;
    Log& log_;
    BatchThread<Job> thread_;  // the last member: it uses the others
};

}  // namespace corvane::directory
