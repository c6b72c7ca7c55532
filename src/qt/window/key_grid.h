// Keys of the front panel in rows.
#pragma once

#include <QLayout>

#include "display/display.h"

namespace corvane {

// The keys of a panel in the table's order, `columns` in a row.
QLayout* keyGrid(Display& display, KeyPanel panel, ChangeQueue& queue, int columns);

}  // namespace corvane
