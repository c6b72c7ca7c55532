// What happens once, after the program has started and made its window.
#pragma once

#include "app/my_tab_view_controller.h"
#include "display/display.h"

namespace corvane {

class AppDelegate {
public:
    explicit AppDelegate(Display& display) : display_(display), pages_{display.mainTab} {}

    // Brings the first page to the front, and lets rows of the memory channels be dragged.
    void applicationDidFinishLaunching();

private:
    Display& display_;
    MyTabViewController pages_;
};

}  // namespace corvane
