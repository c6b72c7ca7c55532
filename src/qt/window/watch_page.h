// The page of what is watched: the list of calls and references, and who of it is on the air.
#pragma once

#include <QWidget>

#include "display/display.h"

namespace corvane {

QWidget* makeWatchPage(Display& display, ChangeQueue& queue);

// "Refresh lists every" with its pop-up.
QLayout* refreshEveryRow(Display& display, ChangeQueue& queue);

}  // namespace corvane
