// What hands do to the table of memory channels: edit a cell, choose a mode, move a row, sort.
#include "controller/serial_port_demo_controller.h"
#include "display/table_columns.h"
#include "memories/memory_entry.h"
#include "memories/memory_order.h"
#include "wire/wire_text.h"

namespace corvane {

void SerialPortDemoController::textEdited(TextField& sender) {
    const auto place = display.memoriesTable.placeOf(sender);
    if (!place) return;
    MemoryChannel& channel = memories.vqMemArray.at(static_cast<std::size_t>(place->row));
    const std::string& typed = sender.stringValue();
    if (place->column == memoryFrequencyColumn) {
        const MemoryFrequencyEntry entry = memoryFrequencyEntry(typed);
        channel.frequency = entry.field;
        if (entry.clearsRow) channel = {"", "", ""};
        if (!entry.field.empty()) display.memoriesTable.setSortDescriptorPrototype(memoryFrequencyColumn, {});
        display.memoriesTable.reloadData();
        if (entry.warning) showWarning(entry.warning->message, entry.warning->detail);
    } else if (place->column == memoryModeColumn) {
        if (auto mode = memoryModeTyped(typed)) channel.mode = std::move(*mode);
    } else if (place->column == memoryTagColumn) {
        channel.tag = memoryTag(typed);
        display.memoriesTable.reloadData();
    }
}

void SerialPortDemoController::modeEdited(PopUpButton& sender) {
    const auto place = display.memoriesTable.placeOf(sender);
    if (!place || sender.indexOfSelectedItem() == PopUpButton::noSelection) return;
    memories.vqMemArray.at(static_cast<std::size_t>(place->row)).mode = memoryModeField(sender.indexOfSelectedItem());
}

// Replies that are still to come name channels, not rows: while they come every row stays in its place.
std::optional<int> SerialPortDemoController::acceptDrop(TableView& table, std::string_view plainText, int row) {
    const auto source = decimal(plainText);
    const bool drop = &table == &display.memoriesTable && row >= 0 && row <= memoryChannels;
    if (!drop || !source || *source < 0 || *source >= memoryChannels || repliesAreComing(memories)) return std::nullopt;
    const int destination = dropDestination(*source, row);
    endHaltedRead();
    moveChannel(memories.vqMemArray, *source, destination);
    display.memoriesTable.reloadData();
    return destination;
}

bool SerialPortDemoController::mouseDownInHeader(TableView& table, int column) {
    if (&table != &display.memoriesTable || !table.column(column).sorts || repliesAreComing(memories)) return false;
    endHaltedRead();
    const SortDirection before = table.sortDirection(column);
    if (column == memoryFrequencyColumn)
        sortByFrequency(memories.vqMemArray, before);
    else
        sortByTag(memories.vqMemArray, before);
    for (int each = 0; each < static_cast<int>(table.columns().size()); ++each)
        if (each != column) table.setSortDescriptorPrototype(each, {});
    table.setSortDescriptorPrototype(column, TableView::SortDescriptor{"Col" + std::to_string(column)});
    table.reloadData();
    return true;
}

}  // namespace corvane
