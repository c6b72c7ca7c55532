#include "interpret/menu_group_read.h"

#include <fmt/core.h>

#include "interpret/menu_groups.h"

namespace corvane {

MenuGroupRead::MenuGroupRead(const MenuGroup& group, unsigned number)
    : page_(group.page), number_(number), stopped_(false) {
    for (std::size_t i = 0; i < menuItems.size(); ++i)
        if (menuItems[i].page() == page_ && isAskedFor(menuItems[i].number)) waiting_.set(i);
    asked_ = static_cast<int>(waiting_.count());
}

bool MenuGroupRead::takeAnswer(const MenuItemRow& row, bool shown) {
    const auto place = static_cast<std::size_t>(&row - menuItems.data());
    if (stopped_ || !waiting_.test(place)) return false;
    waiting_.reset(place);
    if (!shown) ++notShown_;
    return true;
}

bool MenuGroupRead::takeRefusal() {
    if (!running()) return false;
    ++refused_;
    return true;
}

std::string MenuGroupRead::text() const {
    const int read = asked_ - static_cast<int>(waiting_.count()) - notShown_;
    if (handled() < asked_) return fmt::format("{} {} of {} items", stopped_ ? "Read" : "Reading", read, asked_);
    std::string text = fmt::format("{} items read", read);
    if (refused_ > 0) text += fmt::format(", {} unknown to this transceiver", refused_);
    if (notShown_ > 0) text += fmt::format(", {} not shown", notShown_);
    return text;
}

}  // namespace corvane
