#include "interpret/menu_read_state.h"

#include "interpret/menu_groups.h"

namespace corvane {

void MenuReadState::start(const MenuGroup& group) {
    page = group.page;
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
    const std::string count = std::to_string(asked - static_cast<int>(waiting.count()));
    if (handled() < asked) return (stopped ? "Read " : "Reading ") + count + " of " + std::to_string(asked) + " items";
    return count + " items read" +
           (refused > 0 ? ", " + std::to_string(refused) + " unknown to this transceiver" : std::string{});
}

}  // namespace corvane
