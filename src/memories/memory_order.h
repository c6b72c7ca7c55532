// The order of the memory rows, which decides what channel each is written to.
#pragma once

#include <optional>

#include "display/table_view.h"
#include "memories/memory_channel.h"

namespace corvane {

// Where a row goes that is dropped on the gap above `row`: the gap below the last row is the number of rows. Row 2
// dropped above row 5 comes to stand at 4, row 5 dropped above row 2 at 2.
constexpr int dropDestination(int source, int row) { return source < row ? row - 1 : row; }

// Takes the row at `from` out and puts it in at `to`; both exist.
void moveChannel(MemoryTable& table, int from, int to);

// Sorts the rows by the direction that they were sorted in before: anything but ascending sorts them ascending. Rows
// with equal keys keep their order, and rows without a key go last.
//
// By frequency: as a number; a field that is no number counts as no key.
void sortByFrequency(MemoryTable& table, SortDirection before);
// By tag: in the order of character codes; a tag of blanks is one, and an empty one is none.
void sortByTag(MemoryTable& table, SortDirection before);

}  // namespace corvane
