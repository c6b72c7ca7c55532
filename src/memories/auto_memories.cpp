// Auto memories: every 20 seconds the frequency of a signal that is strong enough is kept.
#include <algorithm>

#include "controller/serial_port_demo_controller.h"
#include "display/table_columns.h"
#include "memories/squelch_levels.h"
#include "wire/operating_modes.h"

namespace corvane {

using namespace std::chrono_literals;

namespace {

constexpr auto samplingInterval = 20s;
constexpr std::string_view emptyNote = "   ";

void removeAutoMemory(AutoMemoryState& autoMemories, std::size_t row) {
    const auto at = static_cast<std::ptrdiff_t>(row);
    for (auto* list : {&autoMemories.vqAutoMemoryArray, &autoMemories.vqAutoModeArray, &autoMemories.vqAutoNotesArray})
        list->erase(list->begin() + at);
}

}  // namespace

void SerialPortDemoController::autoMemorySample() {
    if (link.vqSignal >= autoMemories.vqAutoMemSquelch) recordAutoMemory();
    later(samplingInterval, [this] { autoMemorySample(); });
}

void SerialPortDemoController::autoMemoryNow(Button&) {
    if (recordAutoMemory()) playSystemSound("Tink");
}

// A frequency is kept once, with the mode in which it was heard first.
bool SerialPortDemoController::recordAutoMemory() {
    auto& [frequencies, modes, notes, squelch] = autoMemories;
    const std::string& frequency = radio.vqAorB == "A" ? radio.vqFreqA : radio.vqFreqB;
    const bool added = std::ranges::find(frequencies, frequency) == frequencies.end();
    if (added) {
        frequencies.insert(frequencies.begin(), frequency);
        modes.insert(modes.begin(), radio.vqMode);
        notes.insert(notes.begin(), std::string(emptyNote));
    }
    // Before the transceiver's first report there is nothing that could be tuned to.
    for (std::size_t row = frequencies.size(); row-- > 0;)
        if (frequencies[row].empty() || modes[row].empty()) removeAutoMemory(autoMemories, row);
    display.autoMemTable.reloadData();
    return added;
}

void SerialPortDemoController::goAutoMemsTune(Button& sender) {
    const auto row = static_cast<std::size_t>(sender.tag());
    if (row >= autoMemories.vqAutoMemoryArray.size()) return;
    link.cmd = std::string("MD0") + modeCode(autoMemories.vqAutoModeArray[row]) + ";F" + radio.vqAorB +
               autoMemories.vqAutoMemoryArray[row] + ';';
    writeString(link.cmd);
    playSystemSound("Frog");
}

void SerialPortDemoController::goAutoMemsClear(Button& sender) {
    const auto row = static_cast<std::size_t>(sender.tag());
    if (row >= autoMemories.vqAutoMemoryArray.size()) return;
    removeAutoMemory(autoMemories, row);
    display.autoMemTable.reloadData();
    playSystemSound("Basso");
}

void SerialPortDemoController::autoNoteEdited(TextField& sender) {
    const auto place = display.autoMemTable.placeOf(sender);
    auto& notes = autoMemories.vqAutoNotesArray;
    if (!place || place->column != autoMemTableNotesColumn) return;
    const auto row = static_cast<std::size_t>(place->row);
    if (row >= notes.size()) return;
    notes[row] = sender.stringValue();
    display.autoMemTable.reloadData();
}

void SerialPortDemoController::clearAutoMemories() {
    autoMemories.vqAutoMemoryArray.clear();
    autoMemories.vqAutoModeArray.clear();
    autoMemories.vqAutoNotesArray.clear();
    later(0s, [this] { display.autoMemTable.reloadData(); });
    playSystemSound("Basso");
}

void SerialPortDemoController::applyAutoMemSquelch(int index) {
    setAutoMemSquelch(index);
    display.autoMemSquelchSlider.setIntegerValue(index);
}

void SerialPortDemoController::goAutoMemSquelch(Slider& sender) {
    setAutoMemSquelch(sender.integerValue());
    userDefaults.setInteger("autosquelch", sender.integerValue());
}

void SerialPortDemoController::setAutoMemSquelch(int index) {
    const SquelchLevel level = squelchLevel(index);
    autoMemories.vqAutoMemSquelch = level.threshold;
    display.autoMemSquelchTextField.setStringValue(level.label);
}

}  // namespace corvane
