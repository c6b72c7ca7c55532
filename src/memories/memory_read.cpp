// Reading the memory channels: a chain of request and reply, first frequencies and modes, then tags. The pace is the
// transceiver's; nothing is sent on a timer.
#include "controller/serial_port_demo_controller.h"
#include "display/table_columns.h"
#include "memories/memory_commands.h"
#include "wire/wire_text.h"

namespace corvane {

using namespace std::chrono_literals;

namespace {

constexpr auto patience = 3s;  // longer than any transceiver takes for one answer

// Noise may still be text, but it is no channel: it moves the chain on and changes nothing.
bool describesRow(int channel, std::string_view reply) { return channel != 0 && isAscii(reply); }

}  // namespace

void SerialPortDemoController::setMemoryKeysEnabled(bool enabled) {
    display.readMemoriesButton.setEnabled(enabled);
    display.writeMemoriesButton.setEnabled(enabled);
}

void SerialPortDemoController::getMemoriesFromRadio(Button&) { startMemoryRead(); }

void SerialPortDemoController::startMemoryRead() {
    memories.vqMemArray.fill({});
    memories.vqMemRead = "run";
    memories.vqTagRead = "0";
    memories.vqMemReadCnt = 0;
    memories.vqTagReadCnt = 0;
    ++memories.readNumber;
    memories.whole = false;
    memories.stalled = false;
    memories.readSession = link.session;
    memories.answered.reset();
    display.memoriesTable.reloadData();
    requestMemory("MR", 1);
    watchMemoryRead();
}

void SerialPortDemoController::requestMemory(std::string_view name, int channel) {
    link.cmd = memoryRequest(name, channel);
    sendCommand(link.cmd);
    showMemoryReadProgress();
}

void SerialPortDemoController::readMemoryReply(std::string_view response) {
    const MemoryReply reply = memoryReply(response);
    const bool describes = describesRow(reply.channel, response);
    if (memories.vqMemRead != "run") {
        if (describes && memories.vqTagRead == "run" && takeLateChannel(reply)) return;
        return readMemoryInUse(response);
    }
    if (describes) takeChannel(reply);
    memories.stalled = false;
    const int handled = ++memories.vqMemReadCnt;
    if (handled <= memoryChannels) return requestMemory("MR", handled);
    memories.vqMemRead = "0";
    memories.vqTagRead = "run";
    requestMemory("MT", 1);
}

void SerialPortDemoController::takeChannel(const MemoryReply& reply) {
    const auto row = static_cast<std::size_t>(reply.channel - 1);
    memories.vqMemArray[row] = {std::string(reply.frequency), std::string(reply.mode), ""};
    memories.asRead[row] = {memories.vqMemArray[row], std::string(reply.rest)};
    memories.answered.set(row);
    memories.unsaved = true;
}

// A read that was begun anew, or an error answer to another command, leaves one reply more on its way than is counted:
// the last channel then comes after the tags have begun. It belongs in the table; without it a write would erase it.
bool SerialPortDemoController::takeLateChannel(const MemoryReply& reply) {
    if (memories.answered.test(static_cast<std::size_t>(reply.channel - 1))) return false;
    takeChannel(reply);
    return true;
}

void SerialPortDemoController::readTagReply(std::string_view response) {
    const TagReply reply = tagReply(response);
    const bool describes = describesRow(reply.channel, response);
    if (describes) {
        const auto row = static_cast<std::size_t>(reply.channel - 1);
        memories.vqMemArray[row].tag = reply.tag;
        memories.asRead[row].row.tag = reply.tag;
        memories.unsaved = true;
    }
    if (memories.vqTagRead != "run") {
        if (describes) showMemoryChannels();
        return;
    }
    memories.stalled = false;
    const int handled = ++memories.vqTagReadCnt;
    if (handled <= memoryChannels) return requestMemory("MT", handled);
    memories.vqTagRead = "0";
    finishMemoryRead();
}

void SerialPortDemoController::finishMemoryRead() {
    memories.whole = true;
    memories.unsaved = true;
    // What did not answer holds nothing, whatever an earlier read found there. What the operator has typed into a row
    // meanwhile is not what the transceiver holds.
    for (std::size_t row = 0; row < memories.asRead.size(); ++row)
        if (!memories.answered.test(row)) memories.asRead[row] = {};
    display.memoriesTable.setSortDescriptorPrototype(memoryFrequencyColumn, {});
    showMemoryChannels();
    showMemoryReadProgress();
    showWhereChannelsAreSaved();
    playSound("Funk");
}

void SerialPortDemoController::readMemoryInUse(std::string_view response) {
    if (!isAscii(response)) return;
    radio.vqMemFreq = positions(response, 6, 9);
    std::string_view tag = lastOf(response, 12);
    while (!tag.empty() && trimmed(tag.substr(tag.size() - 1)).empty()) tag.remove_suffix(1);
    if (radio.vqAorB == "A") {
        radio.vqMemATag = tag;
        display.vqMemAButton.setTitle("  M-" + std::string(lastOf(radio.vqMemChA, 2)) + ' ' + radio.vqMemATag);
        radio.vqModeA = radio.vqMemFreq == radio.vqFreqA ? "memory" : "vfo";
    } else if (radio.vqAorB == "B") {
        radio.vqMemBTag = tag;
        radio.vqModeB = radio.vqMemFreq == radio.vqFreqB ? "memory" : "vfo";
    }
}

// Shows the channels in the table and in the memory pop-up, whose choice stays.
void SerialPortDemoController::showMemoryChannels() {
    display.memoriesTable.reloadData();
    std::vector<std::string> titles;
    for (int row = 0; row < memoryChannels; ++row)
        titles.push_back(memoryPopUpTitle(row, memories.vqMemArray[static_cast<std::size_t>(row)]));
    const int chosen = display.memPopUpButton.indexOfSelectedItem();
    display.memPopUpButton.setEntries(std::move(titles));
    display.memPopUpButton.selectItem(chosen);
}

void SerialPortDemoController::showMemoryReadProgress(std::string_view problem) {
    const MemoryReadProgress progress = memoryReadProgress(memories);
    display.memoryReadProgress.setVisible(progress.running);
    display.memoryReadProgress.setIntegerValue(progress.handled);
    display.memoryReadField.setStringValue(progress.text + std::string(problem));
}

// A chain that has stopped says so; it goes on by itself should the answer still come.
void SerialPortDemoController::watchMemoryRead() {
    const int handled = memories.vqMemReadCnt + memories.vqTagReadCnt;
    later(patience, [this, handled, read = memories.readNumber] {
        if (read != memories.readNumber || !memoryReadProgress(memories).running) return;
        if (handled == memories.vqMemReadCnt + memories.vqTagReadCnt) {
            memories.stalled = true;
            showMemoryReadProgress(": no answer. Press Read memories to start again.");
        }
        watchMemoryRead();
    });
}

void SerialPortDemoController::memoryReadLostLink() {
    if (!memoryReadProgress(memories).running) return void(++memories.readNumber);
    showMemoryReadProgress(": stopped, the link is closed.");
    endMemoryRead();
}

// What still comes of it is no channel any more.
void SerialPortDemoController::endMemoryRead() {
    ++memories.readNumber;
    memories.vqMemRead = "0";
    memories.vqTagRead = "0";
    memories.stalled = false;
    display.memoryReadProgress.setVisible(false);
}

// Late replies name channels, and rows that have changed their places are other channels.
void SerialPortDemoController::endHaltedRead() {
    if (!memories.stalled) return;
    endMemoryRead();
    display.memoryReadField.setStringValue(
        "Reading ended early: rows have changed. Press Read memories to start again.");
}

}  // namespace corvane
