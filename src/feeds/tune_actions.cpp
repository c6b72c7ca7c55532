// The Tune key of a row.
#include <utility>

#include "feeds/hertz.h"
#include "feeds/lists.h"
#include "feeds/tune_command.h"

namespace corvane {

namespace {

constexpr float kilohertz = 1'000.0F;
constexpr float megahertz = 1'000'000.0F;

}  // namespace

void Lists::goPotaTune(Button& sender) {
    const FeedRow* spot = rowAt(state_.vqPotaArray, sender.tag(), 5);
    const auto frequency = spot ? hertz((*spot)[1], kilohertz) : std::nullopt;
    if (!frequency) return;
    link_.send(tuneCommandForSpot(*frequency, (*spot)[2], ModeWords::spots, mirror_.state().vqAorB));
    voice_.speak((*spot)[4]);
}

void Lists::goSotaTune(Button& sender) {
    const FeedRow* spot = rowAt(state_.vqSotaArray, sender.tag(), 7);
    const auto frequency = spot ? hertz((*spot)[2], megahertz) : std::nullopt;
    if (!frequency) return;
    tuneTo(tuneCommandForSpot(*frequency, (*spot)[3], ModeWords::spots, mirror_.state().vqAorB), (*spot)[6]);
}

void Lists::goNetLoggerTune(Button& sender) {
    if (const FeedRow* net = rowAt(state_.vqNetLoggerArray, sender.tag(), 2))
        tuneTo(tuneCommandForNetLogger((*net)[1], mirror_.state().vqAorB), (*net)[0]);
}

void Lists::goNetsTune(Button& sender) {
    const FeedRow* net = rowAt(state_.vqNetsArray, sender.tag(), 4);
    const auto frequency = net ? hertz((*net)[1], megahertz) : std::nullopt;
    if (!frequency) return;
    tuneTo(tuneCommandForSpot(*frequency, (*net)[3], ModeWords::nets, mirror_.state().vqAorB), (*net)[0]);
}

void Lists::goMWTune(Button& sender) {
    const FeedRow* station = rowAt(state_.vqMWArray, sender.tag(), 2);
    const auto frequency = station ? hertz((*station)[1], kilohertz) : std::nullopt;
    if (!frequency) return;
    const std::string command = tuneCommandForStation(*frequency, mirror_.state().vqAorB);
    around_.log.line(std::to_string(*frequency));
    around_.log.line(command);
    tuneTo(command, (*station)[0]);
}

void Lists::tuneTo(std::string command, const std::string& name) {
    link_.write(std::move(command));
    voice_.speak(name);
}

}  // namespace corvane
