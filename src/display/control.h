// What every control of the window shares. The program writes to these models and reads from them; a shell shows them.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "display/change_queue.h"

namespace corvane {

class ControlList;

enum class Color { none, blue, green, orange, red, purple, pink, brown, gray, darkGray };

// What the interface says of a control: fixed texts, which live as long as the program.
struct Outlet {
    std::string_view name;           // the outlet's name, e.g. "m20Button"; empty for a control known by its tag alone
    int tag = 0;                     // what actions dispatch on, e.g. 20
    std::string_view title = {};     // what stands on it at first
    std::string_view label = {};     // what a screen reader calls it, e.g. "20 meters"
    std::string_view help = {};      // its tool tip, one sentence
    std::string_view shortcut = {};  // e.g. "Ctrl+5"; empty for none
};

class Control {
public:
    explicit Control(const Outlet& outlet);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const Outlet& outlet() const { return outlet_; }
    // The outlet's name, or "tag" and its first tag: "m20Button", "tag275".
    std::string objectName() const;

    int tag() const { return tag_; }
    void setTag(int tag) { assign(tag_, tag); }

    bool enabled() const { return enabled_; }
    void setEnabled(bool enabled) { assign(enabled_, enabled); }

    // A busy control cannot be used for a moment. Unlike a disabled one it keeps the keyboard focus; otherwise the next
    // key press would reach a neighbour.
    bool busy() const { return busy_; }
    void setBusy(bool busy) { assign(busy_, busy); }
    bool available() const { return enabled_ && !busy_; }  // to the operator

    bool visible() const { return visible_; }
    void setVisible(bool visible) { assign(visible_, visible); }

    // Whether the value is the last known one of a transceiver that is out of reach: shown, but not to be relied on.
    bool lastKnown() const { return lastKnown_; }
    void keepAsLastKnown();  // until the transceiver reports again; a value that it never reported stays as it is

    // Joins a view of this control to a queue: `queue.refresh()` calls `show` after changes, until the handle goes. A
    // control may have views in several queues.
    ViewHandle addView(ChangeQueue& queue, std::function<void()> show);

protected:
    // A value that is there already changes nothing and tells nobody.
    template <typename T>
    void assign(T& field, T value) {
        if (field == value) return;
        field = std::move(value);
        markChanged();
    }
    void assign(std::string& field, std::string_view value) {
        if (field == value) return;
        field = value;
        markChanged();
    }
    // The same for a value that the transceiver may report: also a report of the same value is news.
    template <typename T, typename V>
    void assignValue(T& field, V value) {
        noteReport();
        assign(field, value);
    }
    void noteReport();
    void markChanged() {
        if (!allWait_) tellQueues();
    }

private:
    friend class ChangeQueue;
    friend struct View;
    void tellQueues();

    const Outlet outlet_;
    int tag_;
    const ControlList* const list_;  // or nullptr
    bool reported_ = false;          // by the transceiver, in this run
    bool lastKnown_ = false;
    bool enabled_ = true;
    bool busy_ = false;
    bool visible_ = true;
    bool allWait_ = true;  // a change need not be told: every view waits already, or there is none
    std::vector<View*> views_;
};

}  // namespace corvane
