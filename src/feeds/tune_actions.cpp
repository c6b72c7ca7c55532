// The Tune key of a row.
#include <utility>

#include "feeds/lists.h"
#include "feeds/row_facts.h"
#include "feeds/tune_command.h"

namespace corvane {

void Lists::goPotaTune(Button& sender) {
    const FeedRow* spot = rowAt(state_.vqPotaArray, sender.tag(), 5);
    const auto facts = spot ? rowFacts(Feed::pota, *spot) : std::nullopt;
    if (!facts) return;
    link_.send(tuneCommandForSpot(facts->hertz, (*spot)[2], ModeWords::spots, mirror_.state().vqAorB));
    voice_.speak((*spot)[4]);
}

void Lists::goSotaTune(Button& sender) {
    const FeedRow* spot = rowAt(state_.vqSotaArray, sender.tag(), 7);
    const auto facts = spot ? rowFacts(Feed::sota, *spot) : std::nullopt;
    if (!facts) return;
    tuneTo(tuneCommandForSpot(facts->hertz, (*spot)[3], ModeWords::spots, mirror_.state().vqAorB), (*spot)[6]);
}

void Lists::goNetLoggerTune(Button& sender) {
    if (const FeedRow* net = rowAt(state_.vqNetLoggerArray, sender.tag(), 2))
        tuneTo(tuneCommandForNetLogger((*net)[1], mirror_.state().vqAorB), (*net)[0]);
}

void Lists::goNetsTune(Button& sender) {
    const FeedRow* net = rowAt(state_.vqNetsArray, sender.tag(), 4);
    const auto facts = net ? rowFacts(Feed::nets, *net) : std::nullopt;
    if (!facts) return;
    tuneTo(tuneCommandForSpot(facts->hertz, (*net)[3], ModeWords::nets, mirror_.state().vqAorB), (*net)[0]);
}

void Lists::goMWTune(Button& sender) {
    const FeedRow* station = rowAt(state_.vqMWArray, sender.tag(), 2);
    const auto facts = station ? rowFacts(Feed::mediumWave, *station) : std::nullopt;
    if (!facts) return;
    const std::string command = tuneCommandForStation(facts->hertz, mirror_.state().vqAorB);
    around_.log.line(std::to_string(facts->hertz));
    around_.log.line(command);
    tuneTo(command, (*station)[0]);
}

void Lists::tuneTo(std::string command, const std::string& name) {
    link_.write(std::move(command));
    voice_.speak(name);
}

}  // namespace corvane
