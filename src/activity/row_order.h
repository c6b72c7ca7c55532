// Which rows of a list its table shows, and in which order.
#pragma once

#include <string>
#include <vector>

#include "display/table_view.h"

namespace corvane {

struct ShownRow {
    int row = 0;           // of the list
    std::string key = {};  // what it is sorted by: the text of a cell
    bool closed = false;   // says that it is off the air
};

// The rows sorted by their keys, or as they stand if the direction is unknown; in any case those that have closed come
// last. Numbers at the start of keys count as numbers: "900m" before "1200m". Rows without a key come after the others.
// Rows with equal keys keep their order.
std::vector<int> inOrder(const std::vector<ShownRow>& rows, SortDirection direction);

}  // namespace corvane
