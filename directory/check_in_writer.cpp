#include "check_in_writer.h"

namespace corvane::directory {

namespace {

constexpr std::chrono::days kept{7};

// No net has an id of that length or with these bytes, and a database may fail on one instead of finding no net.
bool canBeNet(const std::string& id) { return id.size() <= 200 && id.find('\0') == std::string::npos; }

}  // namespace

CheckInWriter::CheckInWriter(std::string location, Clock clock, std::atomic<long long>& changes, Log& log)
    : location_(std::move(location)), clock_(std::move(clock)), changes_(changes), log_(log), thread_([this] {
          return [this, connection = std::make_shared<Connection>()](std::vector<Job>& batch) {
              write(*connection, batch);
          };
      }) {}

// One transaction for the whole batch, so that all share one sync to disk.
void CheckInWriter::writeInOne(DirectoryStore& store, std::vector<Job>& batch) {
    std::vector<Answer> answers;
    Transaction transaction(store.database());
    for (const Job& job : batch) answers.push_back(write(store, job));
    transaction.commit();
    ++changes_;
    for (std::size_t i = 0; i < batch.size(); ++i) batch[i].reply(std::move(answers[i]));
}

bool CheckInWriter::connect(Connection& connection) {
    try {
        if (!connection) connection = std::make_unique<DirectoryStore>(location_);
        return true;
    } catch (const std::exception& error) {
        log_.line("database", {{"problem", error.what()}});
        return false;
    }
}

// When the shared transaction fails, each job gets its own, so that a bad one does not fail the others.
void CheckInWriter::write(Connection& connection, std::vector<Job>& batch) {
    const auto refuse = [&batch] {
        for (const Job& job : batch) job.reply(textAnswer(503, "The database does not answer."));
    };
    if (!connect(connection)) return refuse();
    try {
        return writeInOne(*connection, batch);
    } catch (const std::exception& error) {
        log_.line("database", {{"problem", error.what()}, {"writes", batch.size()}});
        connection.reset();
    }
    if (batch.size() == 1) return refuse();
    for (Job& job : batch) {
        std::vector<Job> alone{std::move(job)};
        write(connection, alone);
    }
}

Answer CheckInWriter::write(DirectoryStore& store, const Job& job) {
    if (!job.checkIn) {
        store.forgetSessionsBefore(clock_() - kept);
        return {};
    }
    const bool found = canBeNet(job.checkIn->net) && store.record(*job.checkIn, clock_());
    return found ? textAnswer(200, "noted") : textAnswer(404, "There is no such net.");
}

}  // namespace corvane::directory
