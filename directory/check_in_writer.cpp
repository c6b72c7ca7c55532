#include "check_in_writer.h"

#include <algorithm>

namespace corvane::directory {

namespace {

constexpr std::chrono::days kept{7};
constexpr std::chrono::seconds healthStays{1};

// No net has an id of that length or with these bytes, and a database may fail on one instead of finding no net.
bool canBeNet(const std::string& id) { return id.size() <= 200 && id.find('\0') == std::string::npos; }

Answer unavailable() { return textAnswer(503, "The database does not answer."); }

}  // namespace

CheckInWriter::CheckInWriter(DatabaseLocation location, Clock clock, std::atomic<long long>& changes, Log& log)
    : location_(std::move(location)), clock_(std::move(clock)), changes_(changes), log_(log), thread_([this] {
          return [this, work = std::make_shared<Work>()](std::vector<Job>& batch) { carryOut(*work, batch); };
      }) {}

void CheckInWriter::carryOut(Work& work, std::vector<Job>& batch) {
    const auto now = SteadyClock::now();
    std::vector<Job> checkIns;
    bool forgets = false;
    bool asksHealth = false;
    for (Job& job : batch) {
        forgets = forgets || job.kind == Kind::forget;
        asksHealth = asksHealth || job.kind == Kind::health;
        if (job.kind == Kind::checkIn && now - job.submitted < answerPatience) checkIns.push_back(std::move(job));
    }
    if (!checkIns.empty()) write(work, checkIns);
    if (asksHealth) checkHealth(work);
    for (const Job& job : batch)
        if (job.kind == Kind::health) job.reply(textAnswer(work.health == "ok" ? 200 : 503, std::string(work.health)));
    bool more = false;
    if (forgets) attempt(work, 0, [&](DirectoryStore& store) { more = store.forgetSomeBefore(clock_() - kept); });
    if (more) forgetOldSessions();
}

bool CheckInWriter::attempt(Work& work, std::size_t checkIns, const std::function<void(DirectoryStore& store)>& task) {
    try {
        if (!work.store) work.store = std::make_unique<DirectoryStore>(location_);
        task(*work.store);
        work.health = "ok";
    } catch (const DatabaseError& error) {
        log_.line("database", {{"problem", error.what()}, {"reason", error.reason}, {"writes", checkIns}});
        work.health = error.reason;
        work.store.reset();
    }
    work.healthAt = SteadyClock::now();
    return work.health == "ok";
}

// When the database refuses the shared transaction, each check-in gets its own, so that a bad one does not fail the
// others. A database that is locked, full or gone refuses all of them at once.
void CheckInWriter::write(Work& work, std::vector<Job>& checkIns) {
    if (attempt(work, checkIns.size(), [&](DirectoryStore& store) { writeInOne(store, checkIns); })) return;
    if (work.health != "failed" || checkIns.size() == 1) {
        for (const Job& job : checkIns) job.reply(unavailable());
        return;
    }
    for (Job& job : checkIns) {
        std::vector<Job> alone{std::move(job)};
        if (SteadyClock::now() - alone[0].submitted < answerPatience) write(work, alone);
    }
}

// One transaction for all, so that they share one sync to disk.
void CheckInWriter::writeInOne(DirectoryStore& store, const std::vector<Job>& checkIns) {
    std::vector<CheckIn> all;
    for (const Job& job : checkIns) all.push_back(canBeNet(job.checkIn.net) ? job.checkIn : CheckIn{});
    Transaction transaction(store.database());
    const std::vector<bool> known = store.record(all, clock_());
    transaction.commit();
    ++changes_;
    for (std::size_t i = 0; i < checkIns.size(); ++i)
        checkIns[i].reply(known[i] ? textAnswer(200, "noted") : textAnswer(404, "There is no such net."));
}

// A check-in that was just stored, or refused, says the same.
void CheckInWriter::checkHealth(Work& work) {
    if (SteadyClock::now() - work.healthAt < healthStays) return;
    attempt(work, 0, [](DirectoryStore& store) { store.checkHealth(); });
}

}  // namespace corvane::directory
