// Taking memory channels from a file into the table. The transceiver gets them with the next write.
#include "controller/serial_port_demo_controller.h"
#include "display/table_columns.h"
#include "memories/memory_csv.h"

namespace corvane {

// The read that every opening of the port begins with would replace what is taken.
bool SerialPortDemoController::canTakeChannels() const {
    const bool open = link.serialPort && link.serialPort->isOpen();
    return open && memories.readSession == link.session && !repliesAreComing(memories);
}

// What was shown may have changed by the time of the answer.
void SerialPortDemoController::takeImportedChannels(const MemoryTable& shown,
                                                    std::span<const ImportedChannel> channels) {
    if (!canTakeChannels() || memories.vqMemArray != shown)
        return showWarning("Nothing was imported: the channels have changed meanwhile", "Import the file again.");
    endHaltedRead();
    for (const ImportedChannel& imported : channels)
        memories.vqMemArray.at(static_cast<std::size_t>(imported.row)) = imported.channel;
    for (const int column : {memoryFrequencyColumn, memoryTagColumn})
        display.memoriesTable.setSortDescriptorPrototype(column, {});
    display.memoriesTable.reloadData();
    display.memoryReadField.setStringValue(std::to_string(channels.size()) +
                                           (channels.size() == 1 ? " channel" : " channels") +
                                           " imported, not written to the transceiver yet");
}

}  // namespace corvane
