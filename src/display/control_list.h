// Every control that is made while the list is open: its owner opens it before its first control and closes it after
// the last one, and can forget none.
#pragma once

#include <span>
#include <utility>
#include <vector>

namespace corvane {

class Control;

class ControlList {
public:
    ControlList() : outer_(std::exchange(open_, this)) {}
    ~ControlList() { close(); }
    ControlList(const ControlList&) = delete;
    ControlList& operator=(const ControlList&) = delete;

    void close();
    std::span<Control* const> controls() const { return controls_; }  // in the order in which they were made

    // Puts a new control into the list that is open, if any.
    static void enter(Control& control);

private:
    static thread_local ControlList* open_;

    ControlList* const outer_;
    std::vector<Control*> controls_;
};

}  // namespace corvane
