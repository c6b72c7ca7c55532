// A menu that shows its chosen entry.
#pragma once

#include <vector>

#include "display/control.h"
#include "display/entry_titles.h"
#include "display/image.h"

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

    // The title of an entry that stands for an index without a meaning; it cannot be chosen.
    static constexpr std::string_view unusedEntry = "-";

    const EntryTitles& titles() const { return titles_; }
    std::vector<std::string> entries() const { return titles_.list(); }  // all titles; for short lists
    const std::vector<Group>& groups() const { return groups_; }         // none: the entries are one plain list
    // Replaces the entries and drops their images; nothing is selected afterwards.
    void setEntries(EntryTitles titles, std::vector<Group> groups = {}) {
        selected_ = noSelection;
        titles_ = std::move(titles);
        groups_ = std::move(groups);
        images_.clear();
        ++entriesVersion_;
        markChanged();
    }
    // Counts the changes of the entries, so that a view fills its list only when there is something new.
    int entriesVersion() const { return entriesVersion_; }

    // Adds an entry before the one at `index`, from 0 to titles().size(); pictures, selection and groups stay with
    // their entries.
    void insertItem(int index, std::string title) {
        titles_.insert(index, std::move(title));
        if (index < static_cast<int>(images_.size())) images_.insert(images_.begin() + index, Image::none);
        for (Group& group : groups_) group.first += group.first >= index ? 1 : 0;
        selected_ += selected_ >= index ? 1 : 0;
        ++entriesVersion_;
        markChanged();
    }

    Image itemImage(int index) const {
        return index < static_cast<int>(images_.size()) ? images_[static_cast<std::size_t>(index)] : Image::none;
    }
    // The picture beside an entry. An index without an entry changes nothing.
    void setItemImage(int index, Image image) {
        if (index < 0 || index >= titles_.size()) return;
        if (index >= static_cast<int>(images_.size())) images_.resize(static_cast<std::size_t>(index) + 1);
        images_[static_cast<std::size_t>(index)] = image;
        ++entriesVersion_;
        markChanged();
    }

    int indexOfSelectedItem() const { return selected_; }
    std::string titleOfSelectedItem() const {  // empty when nothing is selected
        return selected_ == noSelection ? std::string{} : titles_.at(selected_);
    }

    // An index without an entry selects nothing.
    void selectItem(int index) { assignValue(selected_, index >= 0 && index < titles_.size() ? index : noSelection); }
    // A title that no entry has leaves the selection as it is.
    void selectItemWithTitle(std::string_view title) {
        if (const auto index = titles_.indexOf(title)) selectItem(*index);
    }

    // What a choice does. A pop-up without an action only shows its value.
    std::function<void(PopUpButton&)> action;
    // The operator chooses an entry.
    void choose(int index) {
        if (!action) return;
        const bool unused = index >= 0 && index < titles_.size() && titles_.at(index) == unusedEntry;
        if (!available() || unused) return markChanged();  // a view may show the choice already
        selectedBefore_ = selected_;
        selectItem(index);
        action(*this);
    }
    // For an action that could not do what was chosen: selects the entry of before.
    void takeBack() { selectItem(selectedBefore_); }

private:
    EntryTitles titles_;
    std::vector<Image> images_;  // by index; those of the last entries may be missing
    std::vector<Group> groups_;
    int entriesVersion_ = 0;
    int selected_ = noSelection;
    int selectedBefore_ = noSelection;
};

}  // namespace corvane
