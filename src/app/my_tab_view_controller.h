// The controller of a tab view. It adds nothing to what the view does.
#pragma once

#include "display/tab_view.h"

namespace corvane {

struct MyTabViewController {
    TabView& tabView;
};

}  // namespace corvane
