#include "memories/memory_backup.h"

#include <fmt/chrono.h>

#include <array>

#include "memories/csv_text.h"
#include "memories/memory_commands.h"
#include "memories/table_cells.h"
#include "wire/operating_modes.h"

namespace corvane {

namespace {

std::string withoutBlanksAtEnd(std::string text) {
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

}  // namespace

std::string memoryTableCsv(const ChannelsAsRead& channels) {
    std::string csv = "Location,Name,Frequency,Mode,Record\n";
    for (std::size_t row = 0; row < channels.size(); ++row) {
        const MemoryChannel& channel = channels[row].row;
        if (!isProgrammed(channel)) continue;
        const std::string mode(modeName(channel.mode.empty() ? ' ' : channel.mode.front()).value_or(channel.mode));
        csv +=
            csvLine(std::array{std::to_string(row + 1), withoutBlanksAtEnd(channel.tag),
                               shownMemoryFrequency(channel.frequency), mode, withoutBlanksAtEnd(channels[row].rest)}) +
            '\n';
    }
    return csv;
}

std::string memoryBackupName(std::chrono::system_clock::time_point when) {
    return fmt::format("memory-channels/{:%Y-%m-%dT%H%M%SZ}.csv", fmt::gmtime(when));
}

std::string memoryEditsName(std::chrono::system_clock::time_point when) {
    return fmt::format("memory-channels/{:%Y-%m-%dT%H%M%SZ}-not-written.csv",
                       fmt::gmtime(std::chrono::floor<std::chrono::seconds>(when)));
}

}  // namespace corvane
