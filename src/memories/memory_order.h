// The order of the memory rows, which decides which channel each row is written to.
#pragma once

#include <optional>

#include "display/table_view.h"
#include "memories/memory_channel.h"

namespace corvane {

// Where a row ends up that is dropped into the gap above `row`; for the gap below the last row, `row` is the number of
// rows. Row 2 dropped above row 5 moves to 4, row 5 dropped above row 2 moves to 2.
constexpr int dropDestination(int source, int row) { return source < row ? row - 1 : row; }

// Moves the row at `from` to `to`; both must exist.
void moveChannel(MemoryTable& table, int from, int to);

// Sorts the rows: descending if they were sorted ascending before, otherwise ascending. Rows with equal keys keep their
// order, and rows without a key go last.
//
// By frequency, compared as a number; a field that is not a number is no key.
void sortByFrequency(MemoryTable& table, SortDirection before);
// By tag, in the order of character codes; a tag of blanks is a key, an empty tag is none.
void sortByTag(MemoryTable& table, SortDirection before);

}  // namespace corvane
