#include "directory_reader.h"

namespace corvane::directory {

DirectoryReader::DirectoryReader(DatabaseLocation location, Clock clock, const std::atomic<long long>& changes,
                                 Log& log)
    : location_(std::move(location)), clock_(std::move(clock)), changes_(changes), log_(log), thread_([this] {
          return [this, catalogue = std::make_shared<std::unique_ptr<Catalogue>>()](std::vector<Job>& batch) {
              answer(*catalogue, batch);
          };
      }) {}

void DirectoryReader::Catalogue::refresh(long long changesNow, Seconds now) {
    const bool old = changes != changesNow || now < readAt || now - readAt >= std::chrono::seconds(1);
    if (!old && now < netsPage->validUntil()) return;
    if (const long long newest = store.revision(); newest != revision) {
        nets = store.nets();
        stations = stationsPage(store.stations());
        revision = newest;
    }
    netsPage.emplace(nets, store.counts(now), now);
    changes = changesNow;
    readAt = now;
}

void DirectoryReader::answer(std::unique_ptr<Catalogue>& catalogue, std::vector<Job>& batch) {
    std::vector<Answer> answers;
    try {
        if (!catalogue) catalogue = std::make_unique<Catalogue>(location_);
        const Seconds now = clock_();
        const long long changes = changes_;
        std::vector<std::vector<Confirmation>> own;
        // Before the counts, so that a count always includes the operator's own confirmation.
        for (const Job& job : batch)
            own.push_back(job.operatorKey.empty() ? std::vector<Confirmation>{}
                                                  : catalogue->store.confirmationsOf(job.operatorKey, now));
        catalogue->refresh(changes, now);
        for (std::size_t i = 0; i < batch.size(); ++i) {
            if (batch[i].list == List::nets)
                answers.push_back({200, catalogue->netsPage->with(own[i])});
            else
                answers.push_back({200, catalogue->stations});
        }
    } catch (const std::exception& error) {
        log_.line("database", {{"problem", error.what()}, {"reads", batch.size()}});
        catalogue.reset();
        answers.assign(batch.size(), textAnswer(503, "The database does not answer."));
    }
    for (std::size_t i = 0; i < batch.size(); ++i) batch[i].reply(std::move(answers[i]));
}

}  // namespace corvane::directory
