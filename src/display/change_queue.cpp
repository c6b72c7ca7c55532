#include "display/change_queue.h"

#include <algorithm>
#include <utility>

#include "display/control.h"

namespace corvane {

View::View(Control& shown, std::shared_ptr<ChangeQueue*> joined, std::function<void()> shows)
    : control(&shown), queue(std::move(joined)), show(std::move(shows)) {}

View::~View() {
    if (control) std::erase(control->views_, this);
    leaveQueue();
}

void View::leaveQueue() {
    if (waiting && *queue) std::ranges::replace((*queue)->waiting_, this, nullptr);
}

void ChangeQueue::add(View& view) {
    view.waiting = true;
    waiting_.push_back(&view);
    if (!std::exchange(planned_, true) && onFirstChange) onFirstChange();
}

void ChangeQueue::refresh() {
    planned_ = false;
    for (std::size_t left = waiting_.size(); left > 0 && !waiting_.empty(); --left) {
        View* view = waiting_.front();
        waiting_.pop_front();
        if (!view) continue;
        view->waiting = false;
        view->control->allWait_ = false;
        view->show();
    }
}

}  // namespace corvane
