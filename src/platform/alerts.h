// Boxes over the window that the operator has to answer.
#pragma once

#include <functional>
#include <string_view>

namespace corvane {

// Both show a box that keeps the operator from the window until it is answered, and return at once: reports of the
// transceiver go on being handled meanwhile.
class Alerts {
public:
    virtual ~Alerts() = default;

    // A warning with the one button "OK". `text` may have several lines.
    virtual void warn(std::string_view text) = 0;

    // A question, answered with a button named `verb` ("Write") or with "Cancel", which is what Return and Escape do.
    // `confirmed` is called when it was the first.
    virtual void confirm(std::string_view text, std::string_view verb, std::function<void()> confirmed) = 0;
};

}  // namespace corvane
