#include "interpret/menu_read_state.h"

#include <fmt/core.h>

#include "interpret/menu_groups.h"

namespace corvane {

int MenuReadState::pageOf(const MenuGroup& group) { return group.firstSubMenu / 100 - 1; }

void MenuReadState::start(const MenuGroup& group) {
    page = pageOf(group);
    ++number;
    refused = 0;
    stopped = false;
    waiting.reset();
    for (std::size_t i = 0; i < menuItems.size(); ++i)
        if (menuItems[i].page() == page && isAskedFor(menuItems[i].number)) waiting.set(i);
    asked = static_cast<int>(waiting.count());
}

bool MenuReadState::takeAnswer(const MenuItemRow& row) {
    const auto place = static_cast<std::size_t>(&row - menuItems.data());
    if (stopped || !waiting.test(place)) return false;
    waiting.reset(place);
    return true;
}

bool MenuReadState::takeRefusal() {
    if (!running()) return false;
    ++refused;
    return true;
}

std::string MenuReadState::text() const {
    const int answered = asked - static_cast<int>(waiting.count());
    if (handled() < asked) return fmt::format("{} {} of {} items", stopped ? "Read" : "Reading", answered, asked);
    if (refused == 0) return fmt::format("{} items read", answered);
    return fmt::format("{} items read, {} unknown to this transceiver", answered, refused);
}

}  // namespace corvane
