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
    CheckInWriter(DatabaseLocation location, Clock clock, std::atomic<long long>& changes, Log& log);

    // From any thread. 200 once it is stored, 404 for a net that is not in the directory, 503 when the database fails.
    // One that has waited longer than the answer's patience is not stored any more.
    void record(CheckIn checkIn, Reply reply) { thread_.submit({Kind::checkIn, std::move(checkIn), std::move(reply)}); }
    // Whether check-ins can be stored: 200 "ok", or 503 and the reason in one word. Tries it, but not more than once a
    // second.
    void health(Reply reply) { thread_.submit({Kind::health, {}, std::move(reply)}); }
    // Deletes sessions that ended days ago, with their confirmations, in steps between the check-ins.
    void forgetOldSessions() {
        thread_.submit({Kind::forget, {}, [](const Answer&) {}});
    }
    bool stop(std::chrono::milliseconds patience) { return thread_.stop(patience); }

private:
    using SteadyClock = std::chrono::steady_clock;
    enum class Kind { checkIn, health, forget };
    struct Job {
        Kind kind;
        CheckIn checkIn;
        Reply reply;
        SteadyClock::time_point submitted = SteadyClock::now();
    };
    // Of the thread.
    struct Work {
        std::unique_ptr<DirectoryStore> store;
        std::string_view health = "ok";
        SteadyClock::time_point healthAt{};
    };

    void carryOut(Work& work, std::vector<Job>& batch);
    void write(Work& work, std::vector<Job>& checkIns);
    void writeInOne(DirectoryStore& store, const std::vector<Job>& checkIns);
    void checkHealth(Work& work);
    // False, and logged, when it fails.
    bool attempt(Work& work, std::size_t checkIns, const std::function<void(DirectoryStore& store)>& task);

    const DatabaseLocation location_;
    const Clock clock_;
    std::atomic<long long>& changes_;
    Log& log_;
    BatchThread<Job> thread_;  // the last member: it uses the others
};

}  // namespace corvane::directory
