// A text: one that the operator types, or one that the program shows.
#pragma once

#include <optional>

#include "display/control.h"

namespace corvane {

class TextField : public Control {
public:
    using Control::Control;

    const std::string& stringValue() const { return text_; }
    // The program's text. It waits while the operator types: a report of the transceiver never overwrites what is being
    // typed.
    void setStringValue(std::string_view text) {
        if (editing_)
            waiting_ = text;
        else
            assignValue(text_, text);
    }

    int maximumLength() const { return maximumLength_; }  // in characters as they are typed; 0 is any length
    void setMaximumLength(int length) { maximumLength_ = length; }

    Color textColor() const { return textColor_; }  // none is the ordinary colour
    void setTextColor(Color color) { assign(textColor_, color); }

    // What the operator types: the field is being edited from the first character on.
    std::function<void(TextField&)> onEdit;
    void edit(std::string_view text) {
        if (!editing_) waiting_ = text_;
        editing_ = true;
        assign(text_, text);
        if (onEdit) onEdit(*this);
    }
    bool editing() const { return editing_; }
    // What was typed stays until the program sets another text.
    void endEditing() {
        editing_ = false;
        waiting_.reset();
    }
    // Replaces what was typed by the program's latest text.
    void cancelEditing() {
        if (!std::exchange(editing_, false)) return;
        assign(text_, *std::exchange(waiting_, std::nullopt));
        if (onEdit) onEdit(*this);
    }

    // Asks the shell to take the keyboard away from the field.
    void resignFirstResponder() {
        endEditing();
        assign(resignations_, resignations_ + 1);
    }
    int resignations() const { return resignations_; }  // how often it was asked to

    // What the Return key does. A field without an action only shows its text.
    std::function<void(TextField&)> action;
    void performReturn() {
        if (available() && action) action(*this);
    }

private:
    std::string text_;
    std::optional<std::string> waiting_;  // the program's text while the operator types
    bool editing_ = false;
    int resignations_ = 0;
    int maximumLength_ = 0;
    Color textColor_ = Color::none;
};

}  // namespace corvane
