// A slider with whole values.
#pragma once

#include <algorithm>

#include "display/control.h"

namespace corvane {

class Slider : public Control {
public:
    Slider(const Outlet& outlet, int minimum, int maximum)
        : Control(outlet), minimum_(minimum), maximum_(maximum), value_(minimum) {}

    int minimum() const { return minimum_; }
    int maximum() const { return maximum_; }
    int integerValue() const { return value_; }
    // A value beyond an end stands at that end.
    void setIntegerValue(int value) { assign(value_, std::clamp(value, minimum_, maximum_)); }

    // What a move does. A slider without an action only shows its value.
    std::function<void(Slider&)> action;
    // The operator moves the knob.
    void drag(int value) {
        if (!enabled() || !action) return;
        setIntegerValue(value);
        action(*this);
    }

private:
    const int minimum_;
    const int maximum_;
    int value_;
};

}  // namespace corvane
