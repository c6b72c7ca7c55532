// Edits in the table of memory channels: editing a cell, choosing a mode, moving a row, sorting.
#include "memories/memory_channels.h"

#include "display/table_columns.h"
#include "memories/memory_entry.h"
#include "memories/memory_order.h"
#include "wire/wire_text.h"

namespace corvane {

void MemoryChannels::textEdited(TextField& sender) {
    const auto place = display_.memoriesTable.placeOf(sender);
    if (!place) return;
    MemoryChannel& channel = vqMemArray_.at(static_cast<std::size_t>(place->row));
    const std::string& typed = sender.stringValue();
    if (place->column == memoryFrequencyColumn) {
        const MemoryFrequencyEntry entry = memoryFrequencyEntry(typed);
        channel.frequency = entry.field;
        if (entry.clearsRow) channel = {"", "", ""};
        if (!entry.field.empty()) display_.memoriesTable.setSortDescriptorPrototype(memoryFrequencyColumn, {});
        display_.memoriesTable.reloadData();
        if (entry.warning) voice_.warn(entry.warning->message, entry.warning->detail);
    } else if (place->column == memoryModeColumn) {
        if (auto mode = memoryModeTyped(typed)) channel.mode = std::move(*mode);
    } else if (place->column == memoryTagColumn) {
        channel.tag = memoryTag(typed);
        display_.memoriesTable.reloadData();
    }
}

void MemoryChannels::modeEdited(PopUpButton& sender) {
    const auto place = display_.memoriesTable.placeOf(sender);
    if (!place || sender.indexOfSelectedItem() == PopUpButton::noSelection) return;
    vqMemArray_.at(static_cast<std::size_t>(place->row)).mode = memoryModeField(sender.indexOfSelectedItem());
}

// Replies name channels, not rows: while replies are still to come, every row must stay in its place.
std::optional<int> MemoryChannels::acceptDrop(std::string_view plainText, int row) {
    const auto source = decimal(plainText);
    const bool drop = row >= 0 && row <= memoryChannels;
    if (!drop || !source || *source < 0 || *source >= memoryChannels || !rowsMayMove()) return std::nullopt;
    const int destination = dropDestination(*source, row);
    prepareToMoveRows();
    moveChannel(vqMemArray_, *source, destination);
    display_.memoriesTable.reloadData();
    display_.announcements.say("Now channel " + std::to_string(destination + 1));
    return destination;
}

bool MemoryChannels::mouseDownInHeader(int column) {
    TableView& table = display_.memoriesTable;
    if (!table.column(column).sorts || !rowsMayMove()) return false;
    prepareToMoveRows();
    const SortDirection before = table.sortDirection(column);
    if (column == memoryFrequencyColumn)
        sortByFrequency(vqMemArray_, before);
    else
        sortByTag(vqMemArray_, before);
    for (int each = 0; each < static_cast<int>(table.columns().size()); ++each)
        if (each != column) table.setSortDescriptorPrototype(each, {});
    table.setSortDescriptorPrototype(column, TableView::SortDescriptor{"Col" + std::to_string(column)});
    table.reloadData();
    return true;
}

}  // namespace corvane
