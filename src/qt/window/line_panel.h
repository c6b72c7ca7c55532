// The panel with the traffic on the line.
#pragma once

#include "display/display.h"
#include "qt/window/panel.h"

namespace corvane {

class LineWatch;

Panel* makeLinePanel(LineWatch& line, Display& display, ChangeQueue& queue);

}  // namespace corvane
