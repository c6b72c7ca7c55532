#include "display/control.h"

#include <fmt/core.h>

#include "display/control_list.h"

namespace corvane {

Control::Control(const Outlet& outlet) : outlet_(outlet), tag_(outlet.tag), list_(ControlList::enter(*this)) {}

Control::~Control() {
    for (View* view : views_) {
        view->leaveQueue();
        view->control = nullptr;
    }
}

std::string Control::objectName() const {
    return outlet_.name.empty() ? fmt::format("tag{}", outlet_.tag) : std::string(outlet_.name);
}

ViewHandle Control::addView(ChangeQueue& queue, std::function<void()> show) {
    auto view = std::make_unique<View>(*this, queue.self_, std::move(show));
    views_.push_back(view.get());
    allWait_ = false;
    return ViewHandle(std::move(view));
}

void Control::noteReport() {
    if (!list_ || !list_->reporting()) return;
    reported_ = true;
    if (std::exchange(lastKnown_, false)) markChanged();
}

void Control::keepAsLastKnown() {
    if (!reported_) return;
    assign(lastKnown_, true);
}

// By index: a queue may call back, and views may join meanwhile.
void Control::tellQueues() {
    allWait_ = true;
    for (std::size_t i = 0; i < views_.size(); ++i)
        if (!views_[i]->waiting && *views_[i]->queue) (*views_[i]->queue)->add(*views_[i]);
}

}  // namespace corvane
