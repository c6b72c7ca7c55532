// Pages, one of which is in front.
#pragma once

#include <bitset>

#include "display/control.h"

namespace corvane {

class TabView : public Control {
public:
    static constexpr int mostPages = 16;

    using Control::Control;

    int indexOfSelectedItem() const { return selected_; }
    void selectItem(int index) {
        if (index == selected_) return;
        assign(selected_, index);
        if (onSelect) onSelect();
    }
    std::function<void()> onSelect;  // another page has come to the front

    // Asks for the page's controls to be made without bringing it to the front; asking again changes nothing.
    void requestView(int index) {
        std::bitset<mostPages> requested = requested_;
        requested.set(static_cast<std::size_t>(index));
        assign(requested_, requested);
    }
    bool viewRequested(int index) const { return requested_.test(static_cast<std::size_t>(index)); }

private:
    int selected_ = 0;
    std::bitset<mostPages> requested_;
};

}  // namespace corvane
