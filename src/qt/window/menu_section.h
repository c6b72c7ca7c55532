// The items of one sub-menu of the transceiver's setup menu.
#pragma once

#include <vector>

#include "display/display.h"
#include "qt/window/panel.h"

class QGridLayout;

namespace corvane {

// Stands as a panel of labels and pop-ups, read down its columns.
class MenuSection : public Panel {
    Q_OBJECT

public:
    MenuSection(const MenuSubMenu& subMenu, Display& display, ChangeQueue& queue);

    // Shows the items that match a search, and itself only if there are any.
    void showMatches(std::string_view search);

private:
    struct Item {
        const MenuItemRow* row;
        QWidget* label;
        QWidget* view;
    };

    QWidget* makeView(const MenuItemRow& row, Display& display, ChangeQueue& queue);

    std::vector<Item> items_;
    QGridLayout* grid_;
};

}  // namespace corvane
