// Boxes over the window that the operator has to answer.
#pragma once

#include <functional>
#include <string_view>

namespace corvane {

// Both show a box that blocks the window until the operator answers, and return at once: while it is shown, the
// transceiver's reports are still handled.
class Alerts {
public:
    virtual ~Alerts() = default;

    // A warning with the one button "OK". `text` may have several lines.
    virtual void warn(std::string_view text) = 0;

    // A question with two buttons: `verb` ("Write") and "Cancel". Return and Escape cancel. `confirmed` is called only
    // if the operator presses `verb`.
    virtual void confirm(std::string_view text, std::string_view verb, std::function<void()> confirmed) = 0;
};

}  // namespace corvane
