// The panel "Other programs" of the station page.
#pragma once

#include "display/display.h"
#include "qt/window/panel.h"

namespace corvane {

Panel* makeOtherProgramsPanel(Display& display, ChangeQueue& queue);

}  // namespace corvane
