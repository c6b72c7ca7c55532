// Keys of the front panel in rows.
#pragma once

#include <QLayout>
#include <vector>

#include "display/display.h"

namespace corvane {

// The keys of a panel in the table's order, `columns` in a row. The arrow keys move among them; they share one tab
// stop.
QLayout* keyGrid(Display& display, KeyPanel panel, ChangeQueue& queue, int columns);

// These keys one under the other, each behind its number, 1 first.
QLayout* numberedKeys(const std::vector<Button*>& keys, ChangeQueue& queue);

}  // namespace corvane
