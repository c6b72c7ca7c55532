#include "display/control_list.h"

#include "display/control.h"

namespace corvane {

thread_local ControlList* ControlList::open_ = nullptr;

void ControlList::close() {
    if (open_ == this) open_ = outer_;
}

ControlList* ControlList::enter(Control& control) {
    if (open_) open_->controls_.push_back(&control);
    return open_;
}

void ControlList::keepAsLastKnown() {
    for (Control* control : controls_) control->keepAsLastKnown();
}

}  // namespace corvane
