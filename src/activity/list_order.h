// Which rows of the on-line lists are shown, and in which order: the chips, and the header that was pressed last.
#pragma once

#include <vector>

#include "activity/spot_filter.h"
#include "feeds/lists.h"

namespace corvane {

class ListOrder {
public:
    ListOrder(Display& display, const Lists& lists, const SpotFilter& filter)
        : display_(display), lists_(lists), filter_(filter) {}

    // Nothing for a table that is not one of the lists.
    std::vector<int> rowOrder(const TableView& table) const;
    // Sorts by the column; false for a table or a column that is not sorted here.
    bool mouseDownInHeader(TableView& table, int column);
    // The chips, or the band of one of them, have changed.
    void showAgain();

private:
    Display& display_;
    const Lists& lists_;
    const SpotFilter& filter_;
};

}  // namespace corvane
