#include "memories/table_cells.h"

#include <array>
#include <charconv>

#include "display/table_columns.h"
#include "radio/cat_command.h"
#include "radio/operating_modes.h"

namespace corvane {

namespace {

constexpr double lowestFrequency = 0.03;  // MHz
constexpr double highestFrequency = 75.0;

std::string sixDecimals(double megahertz) {
    std::array<char, 64> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), megahertz, std::chars_format::fixed, 6);
    return {text.data(), end.ec == std::errc{} ? end.ptr : text.data()};
}

double numberOrZero(std::string_view text) {
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc{} && end == text.data() + text.size() ? number : 0;
}

}  // namespace

std::string shownMemoryFrequency(const std::string& field) {
    if (field.size() == 9 && field.find('.') == std::string::npos) {
        const std::string shown = sixDecimals(numberOrZero(field) / 1'000'000);
        return shown == "0.000000" ? std::string() : shown;
    }
    const double megahertz = numberOrZero(field);
    // Written so that what is not a number is not shown either.
    return megahertz >= lowestFrequency && megahertz <= highestFrequency ? sixDecimals(megahertz) : std::string();
}

std::string memoriesTableCell(const MemoryTable& table, int row, int column) {
    const MemoryChannel& channel = table[static_cast<std::size_t>(row)];
    switch (column) {
        case 0:
            return "M-" + zeroPadded(row + 1, 2);
        case 1:
            return shownMemoryFrequency(channel.frequency);
        case 2:
            return std::string(modeName(channel.mode.size() == 1 ? channel.mode.front() : ' ').value_or(""));
        default:
            return channel.tag;
    }
}

std::string autoMemTableCell(const AutoMemoryState& autoMemories, int row, int column) {
    const auto index = static_cast<std::size_t>(row);
    switch (column) {
        case autoMemTableTuneColumn:
        case autoMemTableClearColumn:
            return std::string(autoMemTableColumns[static_cast<std::size_t>(column)].title);
        case 1:
            return autoMemories.vqAutoMemoryArray[index];
        case 2:
            return autoMemories.vqAutoModeArray[index];
        default:
            return autoMemories.vqAutoNotesArray[index];
    }
}

}  // namespace corvane
