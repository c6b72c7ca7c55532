// The one data source of the seven tables: each asks its list.
#include "controller/cell_views.h"
#include "feeds/feed_table.h"
#include "memories/table_cells.h"

namespace corvane {

namespace {

const ListFeed* feedOf(const Display& display, const TableView& table) {
    const auto feed =
        std::ranges::find_if(listFeeds, [&](const ListFeed& row) { return &(display.*row.table) == &table; });
    return feed == listFeeds.end() ? nullptr : &*feed;
}

}  // namespace

void SerialPortDemoController::bindTables() {
    for (TableView* table : {&display.memoriesTable, &display.autoMemTable}) table->setDataSource(*this);
    for (const ListFeed& row : listFeeds) (display.*row.table).setDataSource(*this);
    const auto bind = [this](const auto& cellViews) {
        for (const auto& row : cellViews) {
            auto& control = display.*row.control;
            (display.*row.table).setCellControl(row.column, control);
            control.action = [this, act = row.action](auto& sender) { (this->*act)(sender); };
        }
    };
    bind(buttonCellViews);
    bind(popUpCellViews);
    bind(textCellViews);
}

int SerialPortDemoController::numberOfRows(const TableView& table) const {
    if (&table == &display.memoriesTable) return memoryChannels;
    if (&table == &display.autoMemTable) return static_cast<int>(autoMemories.vqAutoMemoryArray.size());
    const ListFeed* feed = feedOf(display, table);
    return feed ? static_cast<int>((feeds.*feed->list).size()) : 0;
}

TableCell SerialPortDemoController::viewFor(const TableView& table, int row, int column) const {
    if (&table == &display.memoriesTable)
        return memoriesTableCell(memories.vqMemArray, display.memsTableModePopUpButton.titles(), row, column);
    if (&table == &display.autoMemTable) return autoMemTableCell(autoMemories, row, column);
    const ListFeed* feed = feedOf(display, table);
    if (!feed) return {};
    const FeedRow& listed = (feeds.*feed->list)[static_cast<std::size_t>(row)];
    return feedTableCell(feed->cells, table.column(column).identifier, listed, hosts_);
}

void SerialPortDemoController::openLink(std::string_view address) { platform_.browser.open(address); }

}  // namespace corvane
