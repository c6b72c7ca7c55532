#include "display/control.h"

#include <fmt/core.h>

namespace corvane {

void ChangeQueue::add(Control& control) {
    changed_.push_back(&control);
    if (changed_.size() == 1 && onFirstChange) onFirstChange();
}

void ChangeQueue::refresh() {
    const std::vector<Control*> changed = std::exchange(changed_, {});
    for (Control* control : changed) {
        control->queued_ = false;
        for (const auto& show : control->views_) show();
    }
}

std::string Control::objectName() const {
    return outlet_.name.empty() ? fmt::format("tag{}", outlet_.tag) : std::string(outlet_.name);
}

void Control::addView(ChangeQueue& queue, std::function<void()> show) {
    queue_ = &queue;
    views_.push_back(std::move(show));
}

void Control::markChanged() {
    if (queued_ || !queue_) return;
    queued_ = true;
    queue_->add(*this);
}

}  // namespace corvane
