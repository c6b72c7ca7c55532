// What every control of the window shares. The program writes to these models and reads from them; a shell shows them.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace corvane {

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

class Control;

// The controls that changed since the shell last looked. `onFirstChange` is called when the first one joins, so that
// the shell can plan one repaint for all that follow.
class ChangeQueue {
public:
    std::function<void()> onFirstChange;

    void add(Control& control);
    // Has every changed control shown again, once; what changes meanwhile waits for the next call.
    void refresh();

private:
    std::vector<Control*> changed_;
};

class Control {
public:
    explicit Control(const Outlet& outlet) : outlet_(outlet), tag_(outlet.tag) {}
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const Outlet& outlet() const { return outlet_; }
    // The outlet's name, or "tag" and its first tag: "m20Button", "tag275".
    std::string objectName() const;

    int tag() const { return tag_; }
    void setTag(int tag) { assign(tag_, tag); }

    bool enabled() const { return enabled_; }
    void setEnabled(bool enabled) { assign(enabled_, enabled); }

    bool visible() const { return visible_; }
    void setVisible(bool visible) { assign(visible_, visible); }

    // Joins a view of this control: `show` is called by `queue.refresh()` after changes. The queue must outlive the
    // control's last change.
    void addView(ChangeQueue& queue, std::function<void()> show);

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
    void markChanged();

private:
    friend class ChangeQueue;

    const Outlet outlet_;
    int tag_;
    bool enabled_ = true;
    bool visible_ = true;
    bool queued_ = false;
    ChangeQueue* queue_ = nullptr;
    std::vector<std::function<void()>> views_;
};

}  // namespace corvane
