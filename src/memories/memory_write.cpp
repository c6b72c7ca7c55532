// Writing the memory channels: one burst of commands, without waiting for the transceiver. Before what was read last
// is written over it is saved.
#include <algorithm>

#include "controller/serial_port_demo_controller.h"
#include "memories/memory_backup.h"
#include "memories/memory_commands.h"

namespace corvane {

using namespace std::chrono_literals;

namespace {

constexpr auto settlingTime = 200ms;  // what the transceiver needs before it takes the last command

std::string question(const MemoryState& memories, bool read) {
    const auto written = std::ranges::count_if(memories.vqMemArray, isProgrammed);
    std::string text = "Write the memory channels to the transceiver?\n\n";
    text +=
        std::to_string(written) + " will be written, " + std::to_string(memoryChannels - written) + " will be erased.";
    if (!read) text += " They have not been read before, so nothing can be saved first.";
    return text;
}

}  // namespace

void SerialPortDemoController::askBeforeWriting(Button& sender) {
    const bool read = memories.lastRead || memories.saved;
    platform_.alerts.confirm(question(memories, read), "Write", [this, &sender, alive = std::weak_ptr(alive_)] {
        if (!alive.expired()) writeMemoriesToRadio(sender);
    });
}

void SerialPortDemoController::writeMemoriesToRadio(Button&) {
    if (!saveMemoriesAsRead()) return;
    for (int row = 0; row < memoryChannels; ++row) {
        const MemoryChannel& channel = memories.vqMemArray[static_cast<std::size_t>(row)];
        sendCommand(memoryWriteCommand(row, channel));
        if (const auto tag = tagWriteCommand(row, channel)) sendCommand(*tag);
    }
    sendCommand("VS1;MC002;");
    later(settlingTime, [this, session = link.session] {
        if (session == link.session) sendCommand("VS0;MC001;");
        showMemoryChannels();
        playSound("Seatbelts");
    });
}

bool SerialPortDemoController::saveMemoriesAsRead() {
    if (!memories.lastRead) return true;
    const SavedFile file =
        platform_.dataFolder.save(memoryBackupName(platform_.scheduler.now()), memoryTableCsv(*memories.lastRead));
    if (!file.error.empty()) {
        showWarning("Nothing was written: the channels as last read could not be saved",
                    "To " + file.path + ": " + file.error);
        return false;
    }
    memories.lastRead.reset();
    memories.saved = true;
    display.memoryBackupField.setStringValue("The channels as last read are saved in " + file.path);
    return true;
}

}  // namespace corvane
