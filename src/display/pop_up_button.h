// A menu that shows its chosen entry.
#pragma once

#include <vector>

#include "display/control.h"

namespace corvane {

class PopUpButton : public Control {
public:
    static constexpr int noSelection = -1;

    using Control::Control;

    // Entries that belong together, from `first` to the next group.
    struct Group {
        std::string title;
        int first;

        bool operator==(const Group&) const = default;
    };

    const std::vector<std::string>& entries() const { return entries_; }
    const std::vector<Group>& groups() const { return groups_; }  // none: the entries are one plain list
    // Replaces the entries; nothing is selected afterwards.
    void setEntries(std::vector<std::string> entries, std::vector<Group> groups = {}) {
        selected_ = noSelection;
        entries_ = std::move(entries);
        groups_ = std::move(groups);
        ++entriesVersion_;
        markChanged();
    }
    // Counts the calls of setEntries, so that a view fills its list only when there is something new.
    int entriesVersion() const { return entriesVersion_; }

    int indexOfSelectedItem() const { return selected_; }
    std::string_view titleOfSelectedItem() const {
        return selected_ == noSelection ? std::string_view{}
                                        : std::string_view{entries_[static_cast<std::size_t>(selected_)]};
    }

    // An index without an entry selects nothing.
    void selectItem(int index) {
        assign(selected_, index >= 0 && index < static_cast<int>(entries_.size()) ? index : noSelection);
    }
    // A title that no entry has leaves the selection as it is.
    void selectItemWithTitle(std::string_view title) {
        for (std::size_t i = 0; i < entries_.size(); ++i)
            if (entries_[i] == title) return selectItem(static_cast<int>(i));
    }

    // What a choice does. A pop-up without an action only shows its value.
    std::function<void(PopUpButton&)> action;
    // The operator chooses an entry.
    void choose(int index) {
        if (!enabled() || !action) return;
        selectedBefore_ = selected_;
        selectItem(index);
        action(*this);
    }
    // For an action whose choice came to nothing: the entry of before is selected again.
    void takeBack() { selectItem(selectedBefore_); }

private:
    std::vector<std::string> entries_;
    std::vector<Group> groups_;
    int entriesVersion_ = 0;
    int selected_ = noSelection;
    int selectedBefore_ = noSelection;
};

}  // namespace corvane
