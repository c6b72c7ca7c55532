// When changed controls are shown: their views wait in a queue until the shell has time for them.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <utility>

namespace corvane {

class ChangeQueue;
class Control;

// The link between a control and the widget that shows it, made by `Control::addView` and destroyed with its
// ViewHandle. Handle, control and queue may be destroyed in any order. `show` may end other views, not its own.
struct View {
    Control* control;                     // null after the control has been destroyed
    std::shared_ptr<ChangeQueue*> queue;  // points to null after the queue has been destroyed
    std::function<void()> show;
    bool waiting = false;  // put into the queue and not shown since

    View(Control& shown, std::shared_ptr<ChangeQueue*> joined, std::function<void()> shows);
    ~View();
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    void leaveQueue();
};

class [[nodiscard]] ViewHandle {
public:
    ViewHandle() = default;  // of no view
    explicit ViewHandle(std::unique_ptr<View> view) : view_(std::move(view)) {}

private:
    std::unique_ptr<View> view_;
};

// The views whose controls changed since the shell last looked. `onFirstChange` is called when the first one joins, so
// that the shell can plan one repaint for all that follow.
class ChangeQueue {
public:
    ChangeQueue() = default;
    ~ChangeQueue() { *self_ = nullptr; }
    ChangeQueue(const ChangeQueue&) = delete;
    ChangeQueue& operator=(const ChangeQueue&) = delete;

    std::function<void()> onFirstChange;

    // Has every waiting view show its control, once; what changes meanwhile waits for the next call.
    void refresh();

private:
    friend class Control;
    friend struct View;
    void add(View& view);

    const std::shared_ptr<ChangeQueue*> self_ = std::make_shared<ChangeQueue*>(this);
    std::deque<View*> waiting_;  // null for a view that has ended meanwhile
    bool planned_ = false;       // onFirstChange was called since the last refresh
};

}  // namespace corvane
