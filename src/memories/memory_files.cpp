// Exporting and importing memory channels. Imported channels reach the transceiver with the next write.
#include <algorithm>

#include "memories/memory_channels.h"
#include "memories/memory_commands.h"

namespace corvane {

namespace {

constexpr std::string_view kind = "Memory channels (*.csv)";
constexpr std::size_t largestFile = 1024 * 1024;  // bytes; 99 channels take about ten thousand

}  // namespace

void MemoryChannels::tell(std::string_view what, std::string_view why) {
    around_.alerts.warn(std::string(what).append("\n\n").append(why));
}

void MemoryChannels::exportMemories(Button&) {
    if (read_.repliesAreComing())
        return tell("The memory channels are being read", "Wait until they have been read, then export them.");
    if (std::ranges::none_of(vqMemArray_, isProgrammed))
        return tell("There is nothing to export", "No memory channel is programmed. Read memories first.");
    // The file holds the table as it is now: a read may begin before a file is chosen.
    const auto write = [this, csv = memoryCsv(vqMemArray_)](const std::string& path) {
        const SavedFile file = around_.files.write(path, csv);
        if (!file.error.empty()) return tell("The memory channels were not exported", file.path + ": " + file.error);
        display_.announcements.say("Exported to " + file.path);
    };
    const auto choose = [this, write] {
        around_.files.chooseNew("Export memory channels", kind, "memory-channels.csv", tasks_.guarded(write));
    };
    const std::string missing = read_.missing();
    if (missing.empty()) return choose();
    around_.alerts.confirm("Export the memory channels that have been read?\n\nThe file will lack the " + missing +
                               ": they have not been read.",
                           "Export", tasks_.guarded(choose));
}

// Every opening of the port starts a read, which would replace imported channels.
bool MemoryChannels::canTakeChannels() const {
    return link_.isOpen() && read_.session == link_.session() && !read_.repliesAreComing();
}

void MemoryChannels::importMemories(Button&) {
    if (!canTakeChannels())
        return tell(
            "The memory channels have not been read yet",
            "Connect and wait until they have been read, then import the file: reading replaces imported channels.");
    around_.files.chooseExisting("Import memory channels", kind,
                                 tasks_.guarded([this](const std::string& path) { importFile(path); }));
}

void MemoryChannels::importFile(const std::string& path) {
    const auto refuse = [this, &path](const std::string& why) {
        tell("No memory channels were imported", path + ": " + why);
    };
    const OpenedFile file = around_.files.read(path, largestFile);
    if (!file.error.empty()) return refuse(file.error);
    if (file.contents.size() > largestFile) return refuse("The file is larger than 1 MiB.");
    MemoryImport import = readMemoryCsv(file.contents);
    if (!import.problem.empty()) return refuse(import.problem);
    onImport(std::move(import), vqMemArray_,
             tasks_.guarded([this, shown = vqMemArray_](const std::vector<ImportedChannel>& chosen) {
                 takeImportedChannels(shown, chosen);
             }));
}

// The channels may have changed since the preview was opened.
void MemoryChannels::takeImportedChannels(const MemoryTable& shown, std::span<const ImportedChannel> channels) {
    if (!canTakeChannels() || vqMemArray_ != shown)
        return voice_.warn("Nothing was imported: the channels have changed meanwhile", "Import the file again.");
    prepareToMoveRows();
    for (const ImportedChannel& imported : channels)
        vqMemArray_.at(static_cast<std::size_t>(imported.row)) = imported.channel;
    forgetSorting();
    display_.memoriesTable.reloadData();
    display_.memoryReadField.setStringValue(std::to_string(channels.size()) +
                                            (channels.size() == 1 ? " channel" : " channels") +
                                            " imported, not written to the transceiver yet");
    display_.announcements.say(display_.memoryReadField.stringValue());
}

}  // namespace corvane
