// A slider with whole values.
#pragma once

#include <algorithm>
#include <optional>

#include "display/control.h"

namespace corvane {

class Slider : public Control {
public:
    Slider(const Outlet& outlet, int minimum, int maximum)
        : Control(outlet), minimum_(minimum), maximum_(maximum), value_(minimum) {}

    int minimum() const { return minimum_; }
    int maximum() const { return maximum_; }
    int integerValue() const { return value_; }
    // The transceiver's value, limited to the range of the slider. It waits while the operator moves the knob.
    void setIntegerValue(int value) {
        value = std::clamp(value, minimum_, maximum_);
        if (moving_)
            waiting_ = value;
        else
            assignValue(value_, value);
    }

    // What a move does. A slider without an action only shows its value.
    std::function<void(Slider&)> action;
    // The operator moves the knob.
    void drag(int value) {
        if (!action) return;
        if (!available()) return markChanged();  // a view may show the move already
        assign(value_, std::clamp(value, minimum_, maximum_));
        action(*this);
    }

    // Between beginMove and endMove, late reports of an earlier position do not pull the knob back.
    void beginMove() { moving_ = true; }
    void endMove() {
        moving_ = false;
        if (waiting_) assign(value_, *std::exchange(waiting_, std::nullopt));
    }

private:
    const int minimum_;
    const int maximum_;
    int value_;
    bool moving_ = false;
    std::optional<int> waiting_;  // what was reported during a move
};

}  // namespace corvane
