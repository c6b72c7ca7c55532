#include "memories/auto_memories.h"

#include <algorithm>

#include "display/table_columns.h"
#include "memories/squelch_levels.h"
#include "wire/operating_modes.h"

namespace corvane {

using namespace std::chrono_literals;

namespace {

constexpr auto samplingInterval = 20s;
constexpr std::string_view emptyNote = "   ";

void removeAutoMemory(AutoMemoryState& state, std::size_t row) {
    const auto at = static_cast<std::ptrdiff_t>(row);
    for (auto* list : {&state.vqAutoMemoryArray, &state.vqAutoModeArray, &state.vqAutoNotesArray})
        list->erase(list->begin() + at);
}

}  // namespace

AutoMemories::AutoMemories(Display& display, Link& link, const Mirror& mirror, Voice& voice, SettingsStore& settings,
                           Scheduler& scheduler)
    : display_(display), link_(link), mirror_(mirror), voice_(voice), settings_(settings), tasks_(scheduler) {}

void AutoMemories::autoMemorySample() {
    if (mirror_.state().vqSignal >= state_.vqAutoMemSquelch) record();
    tasks_.after(samplingInterval, [this] { autoMemorySample(); });
}

void AutoMemories::autoMemoryNow(Button&) {
    if (record()) voice_.playSystemSound("Tink");
}

// A frequency is recorded once, with the mode in which it was heard first.
bool AutoMemories::record() {
    auto& [frequencies, modes, notes, squelch] = state_;
    const std::string& frequency = mirror_.activeFrequency();
    const bool added = std::ranges::find(frequencies, frequency) == frequencies.end();
    if (added) {
        frequencies.insert(frequencies.begin(), frequency);
        modes.insert(modes.begin(), mirror_.state().vqMode);
        notes.insert(notes.begin(), std::string(emptyNote));
    }
    // Before the transceiver's first report there is no frequency or mode that a row could tune to.
    for (std::size_t row = frequencies.size(); row-- > 0;)
        if (frequencies[row].empty() || modes[row].empty()) removeAutoMemory(state_, row);
    display_.autoMemTable.reloadData();
    return added;
}

void AutoMemories::goAutoMemsTune(Button& sender) {
    const auto row = static_cast<std::size_t>(sender.tag());
    if (row >= state_.vqAutoMemoryArray.size()) return;
    link_.write(std::string("MD0") + modeCode(state_.vqAutoModeArray[row]) + ";F" + mirror_.state().vqAorB +
                state_.vqAutoMemoryArray[row] + ';');
    voice_.playSystemSound("Frog");
}

void AutoMemories::goAutoMemsClear(Button& sender) {
    const auto row = static_cast<std::size_t>(sender.tag());
    if (row >= state_.vqAutoMemoryArray.size()) return;
    removeAutoMemory(state_, row);
    display_.autoMemTable.reloadData();
    voice_.playSystemSound("Basso");
}

void AutoMemories::autoNoteEdited(TextField& sender) {
    const auto place = display_.autoMemTable.placeOf(sender);
    auto& notes = state_.vqAutoNotesArray;
    if (!place || place->column != autoMemTableNotesColumn) return;
    const auto row = static_cast<std::size_t>(place->row);
    if (row >= notes.size()) return;
    notes[row] = sender.stringValue();
    display_.autoMemTable.reloadData();
}

void AutoMemories::clear() {
    state_.vqAutoMemoryArray.clear();
    state_.vqAutoModeArray.clear();
    state_.vqAutoNotesArray.clear();
    tasks_.after(0s, [this] { display_.autoMemTable.reloadData(); });
    voice_.playSystemSound("Basso");
}

void AutoMemories::applyAutoMemSquelch(int index) {
    setSquelch(index);
    display_.autoMemSquelchSlider.setIntegerValue(index);
}

void AutoMemories::restoreSquelch() { applyAutoMemSquelch(settings_.integer("autosquelch")); }

void AutoMemories::goAutoMemSquelch(Slider& sender) {
    setSquelch(sender.integerValue());
    settings_.setInteger("autosquelch", sender.integerValue());
}

void AutoMemories::setSquelch(int index) {
    const SquelchLevel level = squelchLevel(index);
    state_.vqAutoMemSquelch = level.threshold;
    display_.autoMemSquelchTextField.setStringValue(level.label);
}

}  // namespace corvane
