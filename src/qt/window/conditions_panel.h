// The band conditions: a value by day and by night for each pair of bands, and when they were fetched.
#pragma once

#include "display/display.h"
#include "qt/window/panel.h"

namespace corvane {

// Any number of panels show the same conditions; their key fetches them for all.
Panel* makeConditionsPanel(Display& display, ChangeQueue& queue);

}  // namespace corvane
