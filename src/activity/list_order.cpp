#include "activity/list_order.h"

#include <algorithm>

#include "activity/row_order.h"
#include "feeds/row_facts.h"

namespace corvane {

std::vector<int> ListOrder::rowOrder(const TableView& table) const {
    const ListFeed* feed = feedOf(display_, table);
    if (!feed) return {};
    int sorted = -1;
    for (int column = 0; column < static_cast<int>(table.columns().size()); ++column)
        if (table.sortDirection(column) != SortDirection::unknown) sorted = column;
    const FeedList& list = lists_.state().*feed->list;
    std::vector<ShownRow> rows;
    rows.reserve(list.size());
    for (std::size_t index = 0; index < list.size(); ++index) {
        // A row that cannot be tuned to has no band and no mode.
        const auto facts = filter_.limits() ? rowFacts(feed->feed, list[index]) : std::nullopt;
        const RowFacts known = facts.value_or(RowFacts{});
        if (!filter_.passes(known.hertz, known.mode)) continue;
        const int row = static_cast<int>(index);
        rows.push_back({row, sorted < 0 ? std::string() : table.cell(row, sorted), saysQrt(feed->feed, list[index])});
    }
    return inOrder(rows, sorted < 0 ? SortDirection::unknown : table.sortDirection(sorted));
}

// The table asks for the order once the header's direction is set.
bool ListOrder::mouseDownInHeader(TableView& table, int column) {
    if (!feedOf(display_, table) || !table.column(column).sorts) return false;
    for (int each = 0; each < static_cast<int>(table.columns().size()); ++each)
        if (each != column) table.setSortDescriptorPrototype(each, {});
    table.setSortDescriptorPrototype(column, TableView::SortDescriptor{"Col" + std::to_string(column)});
    table.reloadData();
    return true;
}

void ListOrder::showAgain() {
    for (const ListFeed& feed : listFeeds) (display_.*feed.table).reloadData();
}

}  // namespace corvane
