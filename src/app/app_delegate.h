// What happens once, when the program has started and its window is made.
#pragma once

#include "app/my_tab_view_controller.h"
#include "display/display.h"

namespace corvane {

class AppDelegate {
public:
    explicit AppDelegate(Display& display) : display_(display), pages_{display.mainTab} {}

    // The first page is in front, and rows of the memory channels can be dragged.
    void applicationDidFinishLaunching();

private:
    Display& display_;
    MyTabViewController pages_;
};

}  // namespace corvane
