// An entry of the menu bar, or a box to tick.
#pragma once

#include "display/control.h"

namespace corvane {

class MenuItem : public Control {
public:
    using Control::Control;

    bool checked() const { return checked_; }
    void setChecked(bool checked) { assign(checked_, checked); }

    std::function<void(MenuItem&)> action;
    void performClick() {
        if (available() && action) action(*this);
    }

private:
    bool checked_ = false;
};

}  // namespace corvane
