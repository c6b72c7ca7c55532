#include "memories/table_cells.h"

#include <fmt/core.h>

#include "display/table_columns.h"
#include "memories/memory_commands.h"
#include "wire/decimal_number.h"
#include "wire/operating_modes.h"
#include "wire/tuning_range.h"

namespace corvane {

std::string shownMemoryFrequency(const std::string& field) {
    if (field.size() == 9 && field.find('.') == std::string::npos) {
        const std::string shown = withDecimals(numberOrZero(field) / 1'000'000, 6);
        return shown == "0.000000" ? std::string() : shown;
    }
    const double megahertz = numberOrZero(field);
    const bool tunable = megahertz >= lowestMegahertz && megahertz <= highestMegahertz;
    return tunable ? withDecimals(megahertz, 6) : std::string();
}

int memoryModeEntry(std::string_view field) {
    if (field == "10") return 10;
    const OperatingMode* mode = field.size() == 1 ? operatingMode(field.front()) : nullptr;
    return mode ? static_cast<int>(mode - operatingModes.data()) + 1 : 0;
}

TableCell memoriesTableCell(const MemoryTable& table, const EntryTitles& modes, int row, int column) {
    const MemoryChannel& channel = table[static_cast<std::size_t>(row)];
    switch (column) {
        case 0:
            return HandleCell{};
        case 1:
            return TextCell{fmt::format("M-{:02}", row + 1), !isProgrammed(channel)};
        case memoryFrequencyColumn:
            return EditableCell{shownMemoryFrequency(channel.frequency)};
        case memoryModeColumn:
            return PopUpCell{&modes, memoryModeEntry(channel.mode)};
        default:
            return EditableCell{channel.tag};
    }
}

TableCell autoMemTableCell(const AutoMemoryState& autoMemories, int row, int column) {
    const auto index = static_cast<std::size_t>(row);
    switch (column) {
        case 1:
            return TextCell{autoMemories.vqAutoMemoryArray[index]};
        case 2:
            return TextCell{autoMemories.vqAutoModeArray[index]};
        case autoMemTableNotesColumn:
            return EditableCell{autoMemories.vqAutoNotesArray[index]};
        default:
            return {};
    }
}

}  // namespace corvane
