// A bar with whole values from 0 to a maximum.
#pragma once

#include <algorithm>

#include "display/control.h"

namespace corvane {

class LevelIndicator : public Control {
public:
    LevelIndicator(const Outlet& outlet, int maximum) : Control(outlet), maximum_(maximum) {}

    int maximum() const { return maximum_; }
    int integerValue() const { return value_; }
    void setIntegerValue(int value) { assignValue(value_, std::clamp(value, 0, maximum_)); }

private:
    const int maximum_;
    int value_ = 0;
};

}  // namespace corvane
