#include "interpret/menu_group_read.h"

#include "interpret/menu_groups.h"

namespace corvane {

MenuGroupRead::MenuGroupRead(const MenuGroup& group, unsigned number)
    : page_(group.page), number_(number), stopped_(false) {
    for (std::size_t i = 0; i < menuItems.size(); ++i)
        if (menuItems[i].page() == page_ && isAskedFor(menuItems[i].number)) waiting_.set(i);
    asked_ = static_cast<int>(waiting_.count());
}

bool MenuGroupRead::takeAnswer(const MenuItemRow& row) {
    const auto place = static_cast<std::size_t>(&row - menuItems.data());
    if (stopped_ || !waiting_.test(place)) return false;
    waiting_.reset(place);
    return true;
}

bool MenuGroupRead::takeRefusal() {
    if (!running()) return false;
    ++refused_;
    return true;
}

std::string MenuGroupRead::text() const {
    const std::string count = std::to_string(asked_ - static_cast<int>(waiting_.count()));
    if (handled() < asked_)
        return (stopped_ ? "Read " : "Reading ") + count + " of " + std::to_string(asked_) + " items";
    return count + " items read" +
           (refused_ > 0 ? ", " + std::to_string(refused_) + " unknown to this transceiver" : std::string{});
}

}  // namespace corvane
