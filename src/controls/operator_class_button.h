// The button that shows the operator class allowed on the frequency.
#pragma once

#include <string_view>

#include "display/display.h"

namespace corvane {

class OperatorClassButton {
public:
    explicit OperatorClassButton(Display& display);  // hidden until there is a frequency

    void showOperatorClass(std::string_view megahertz);  // "14.250000"; text that is not a number shows "Out of Band"

private:
    Button& button_;
};

}  // namespace corvane
