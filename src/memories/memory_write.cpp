// Writing the memory channels: one burst of commands, without waiting for the transceiver. Before what was read last
// is written over it is saved.
#include <algorithm>

#include "controller/serial_port_demo_controller.h"
#include "memories/memory_backup.h"
#include "memories/memory_commands.h"
#include "wire/cat_command.h"
#include "wire/operating_modes.h"

namespace corvane {

using namespace std::chrono_literals;

namespace {

constexpr auto pauseBeforeLast = 200ms;

// "M-14, M-20"
std::string channelsWithoutMode(const MemoryTable& channels) {
    std::string rows;
    for (std::size_t row = 0; row < channels.size(); ++row) {
        const MemoryChannel& channel = channels[row];
        if (!isProgrammed(channel) || (channel.mode.size() == 1 && modeName(channel.mode.front()))) continue;
        rows.append(rows.empty() ? "M-" : ", M-").append(zeroPadded(static_cast<int>(row) + 1, 2));
    }
    return rows;
}

std::string question(const MemoryState& memories) {
    const auto written = std::ranges::count_if(memories.vqMemArray, isProgrammed);
    std::string text = "Write the memory channels to the transceiver?\n\n";
    text += std::to_string(written) + " will be written, " + std::to_string(memoryChannels - written) +
            " will be erased. Clarifier, tone and shift of every channel are reset.";
    if (const std::string rows = channelsWithoutMode(memories.vqMemArray); !rows.empty())
        text += "\n\nChoose a mode first for " + rows + ": without one the transceiver does not take a channel.";
    if (!memories.whole)
        text +=
            "\n\nThe channels have not been read to the end. What has not been read will be erased and cannot be "
            "saved first.";
    return text;
}

}  // namespace

// What was asked about may have changed by the time of the answer.
void SerialPortDemoController::askBeforeWriting(Button& sender) {
    const auto confirmed = [this, &sender, session = link.session, read = memories.readNumber] {
        if (session == link.session && read == memories.readNumber) return writeMemoriesToRadio(sender);
        showWarning("Nothing was written: the link or the channels have changed meanwhile",
                    "Look at the channels and press Write memories again.");
    };
    platform_.alerts.confirm(question(memories), "Write", [confirmed, alive = std::weak_ptr(alive_)] {
        if (!alive.expired()) confirmed();
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
    later(pauseBeforeLast, [this, session = link.session] {
        if (session == link.session) sendCommand("VS0;MC001;");
        showMemoryChannels();
        playSound("Seatbelts");
    });
}

bool SerialPortDemoController::saveMemoriesAsRead() {
    if (!memories.unsaved) return true;
    const SavedFile file =
        platform_.dataFolder.save(memoryBackupName(platform_.scheduler.now()), memoryTableCsv(memories.asRead));
    if (!file.error.empty()) {
        showWarning("Nothing was written: the channels as last read could not be saved",
                    "To " + file.path + ": " + file.error);
        return false;
    }
    memories.unsaved = false;
    display.memoryBackupField.setStringValue("The channels as they were are saved in " + file.path);
    return true;
}

void SerialPortDemoController::showWhereChannelsAreSaved() {
    display.memoryBackupField.setStringValue("Before a write, the channels as last read are saved in " +
                                             platform_.dataFolder.path() + "/memory-channels");
}

}  // namespace corvane
