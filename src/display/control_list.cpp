#include "display/control_list.h"

namespace corvane {

thread_local ControlList* ControlList::open_ = nullptr;

void ControlList::close() {
    if (open_ == this) open_ = outer_;
}

void ControlList::enter(Control& control) {
    if (open_) open_->controls_.push_back(&control);
}

}  // namespace corvane
