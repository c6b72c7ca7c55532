#include "band_map/band_map.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "band_map/map_texts.h"
#include "band_map/tuning_steps.h"
#include "interpret/shown_frequency.h"
#include "wire/cat_command.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr std::string_view classKey = "operatorClass";
constexpr std::string_view notSet = "Not set";
constexpr std::string_view notConnected = "Not connected: nothing is sent.";

}  // namespace

BandMap::BandMap(Display& display, Link& link, const Mirror& mirror, FrontPanel& frontPanel, const Sources& sources,
                 Voice& voice, SettingsStore& settings, Scheduler& scheduler)
    : display_(display),
      link_(link),
      mirror_(mirror),
      frontPanel_(frontPanel),
      from_(sources),
      voice_(voice),
      settings_(settings),
      tasks_(scheduler) {
    std::vector<std::string> classes{std::string(notSet)};
    classes.insert(classes.end(), licenceClasses.begin(), licenceClasses.end());
    display_.ownClassPopUpButton.setEntries(std::move(classes));
    restore();
    sayWhatToDo();
}

const std::shared_ptr<const MapEntries>& BandMap::entries() {
    long long versions = std::chrono::floor<std::chrono::minutes>(tasks_.now()).time_since_epoch().count();
    // Versions and minutes only grow: their sum stands still only when all of them do.
    for (const MapKind& kind : mapKinds) versions += (display_.*kind.table).version();
    versions += display_.watchListTable.version();
    if (std::exchange(madeFrom_, versions) == versions) return entries_;
    const auto keep = [this](const MapEntry& entry) {
        return from_.filter.passes(chipOf(entry.kind), entry.hertz, entry.mode);
    };
    entries_ = std::make_shared<const MapEntries>(mapEntries(from_.lists.state(), from_.memories.vqMemArray(),
                                                             from_.autoMemories.state(), from_.watching.list(),
                                                             tasks_.now(), keep));
    return entries_;
}

std::optional<long long> BandMap::needle(char side) const { return shownHertz(display_, side); }

std::optional<std::size_t> BandMap::activeBand() const {
    const auto hertz = activeHertz(display_);
    return hertz ? mapBandOf(*hertz) : std::nullopt;
}

bool BandMap::portIsOpen() {
    if (link_.isOpen()) return true;
    display_.bandMapField.setStringValue(notConnected);
    return false;
}

void BandMap::tune(const MapEntry& entry) {
    if (!portIsOpen()) return;
    // Its list may have changed since it was drawn: its row would be another one.
    const bool stillThere = std::ranges::any_of(entries()->bands, [&entry](const BandEntries& band) {
        return std::ranges::any_of(
            band, [&entry](const MapEntry& each) { return each.row == entry.row && sameEntry(each, entry); });
    });
    if (!stillThere) return;
    const MapKind& kind = mapKind(entry.kind);
    TableView& table = display_.*kind.table;
    if (kind.tuneColumn.empty())
        display_.memPopUpButton.choose(entry.row);
    else
        table.pressCell(entry.row, table.columnWithIdentifier(kind.tuneColumn));
}

void BandMap::tuneNear(long long hertz) {
    const auto band = mapBandOf(hertz);
    if (!band || !portIsOpen()) return;
    const Band& limits = limitsOf(*band);
    const long long tuned = roundedTo(tuningStep(mirror_.state().vqMode), hertz, limits.lowerBound, limits.upperBound);
    link_.send('F' + mirror_.state().vqAorB + zeroPadded(tuned, 9) + ';');
}

void BandMap::step(int steps) {
    if (steps == 0 || !portIsOpen()) return;
    frontPanel_.stepFrequency(steps > 0 ? "up" : "down", std::abs(steps) * tuningStep(mirror_.state().vqMode));
}

void BandMap::say(std::string_view line) {
    std::string text(line);
    if (!link_.isOpen()) text.append(" \u2014 ").append(notConnected);
    display_.bandMapField.setStringValue(text);
}

void BandMap::sayWhatToDo() {
    std::string text = "Press an entry or a free place to tune to it; the wheel steps.";
    if (entries_->outside > 0) text += " Outside these bands: " + std::to_string(entries_->outside) + '.';
    say(text);
}

void BandMap::readOutBand(Button&) {
    const auto band = activeBand();
    const std::string text =
        band ? readOut(*band, entries()->bands[*band]) : std::string("The active VFO is outside the bands of the map.");
    display_.bandMapField.setStringValue(text);
    voice_.speak(text);
}

void BandMap::chooseClass(PopUpButton& sender) {
    const std::string title = sender.titleOfSelectedItem();
    ownClass_ = licenceClass(title);
    settings_.setText(classKey, title);
}

void BandMap::restore() {
    const std::string title = settings_.text(classKey).value_or("");
    ownClass_ = licenceClass(title);
    display_.ownClassPopUpButton.selectItemWithTitle(ownClass_ == classNotSet ? notSet : std::string_view(title));
}

}  // namespace corvane
