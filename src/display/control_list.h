// Every control that is made while the list is open: its owner opens it before its first control and closes it after
// the last one, and can forget none. The list also knows whether the transceiver is reporting, so that a control can
// tell a reported value from another one.
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

    // Puts a new control into the list that is open, and returns the list; or returns nullptr.
    static ControlList* enter(Control& control);

    // What the controls are set to while one of these lives is what the transceiver reports.
    class Reporting {
    public:
        explicit Reporting(ControlList& list) : list_(list), before_(std::exchange(list.reporting_, true)) {}
        ~Reporting() { list_.reporting_ = before_; }
        Reporting(const Reporting&) = delete;
        Reporting& operator=(const Reporting&) = delete;

    private:
        ControlList& list_;
        const bool before_;
    };
    bool reporting() const { return reporting_; }
    // The link is closed: each value that the transceiver has reported is the last known one until it is reported
    // again.
    void keepAsLastKnown();

private:
    static thread_local ControlList* open_;

    ControlList* const outer_;
    std::vector<Control*> controls_;
    bool reporting_ = false;
};

}  // namespace corvane
