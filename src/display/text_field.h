// A text: one that the operator types, or one that the program shows.
#pragma once

#include "display/control.h"

namespace corvane {

class TextField : public Control {
public:
    using Control::Control;

    const std::string& stringValue() const { return text_; }
    void setStringValue(std::string_view text) { assign(text_, text); }

    Color textColor() const { return textColor_; }  // none is the ordinary colour
    void setTextColor(Color color) { assign(textColor_, color); }

    // What the Return key does. A field without an action only shows its text.
    std::function<void(TextField&)> action;
    void performReturn() {
        if (enabled() && action) action(*this);
    }

private:
    std::string text_;
    Color textColor_ = Color::none;
};

}  // namespace corvane
