#include "qt/window/menu_section.h"

#include <QGridLayout>
#include <QLabel>

#include "qt/window/control_texts.h"
#include "qt/window/control_views.h"
#include "qt/window/pop_up_view.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

constexpr int columns = 3;

QLabel* itemLabel(const MenuItemRow& row, QWidget& buddy) {
    const QString unit = row.unit.empty() ? QString() : " (" + toQString(row.unit) + ')';
    auto* label = new QLabel(toQString(row.label) + unit);
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setWordWrap(true);
    label->setBuddy(&buddy);
    label->setToolTip(buddy.toolTip());
    return label;
}

}  // namespace

MenuSection::MenuSection(const MenuSubMenu& subMenu, Display& display, ChangeQueue& queue)
    : Panel(toQString(subMenu.title)), grid_(new QGridLayout) {
    grid_->setHorizontalSpacing(3 * gridStep);
    grid_->setVerticalSpacing(gridStep);
    for (int column = 0; column < columns; ++column) {
        grid_->setColumnStretch(2 * column, 4);
        grid_->setColumnStretch(2 * column + 1, 3);
    }
    for (const MenuItemRow& row : menuItems) {
        if (row.subMenu() != subMenu.number) continue;
        QWidget* view = makeView(row, display, queue);
        items_.push_back({&row, itemLabel(row, *view), view});
        for (QWidget* widget : {items_.back().label, view}) widget->setParent(this);
    }
    content().addLayout(grid_);
}

QWidget* MenuSection::makeView(const MenuItemRow& row, Display& display, ChangeQueue& queue) {
    if (PopUpButton* popUp = display.menu.popUp(row.page(), row.tag())) return new PopUpView(*popUp, queue);
    auto* call = new TextFieldView(display.callTextField, queue);
    call->setObjectName("menuCallTextField");
    call->setAccessibleName(toQString(menuSubMenuTitle(row.subMenu())) + ", " + toQString(row.label));
    return call;
}

void MenuSection::showMatches(std::string_view search) {
    std::vector<const Item*> shown;
    for (const Item& item : items_) {
        grid_->removeWidget(item.label);
        grid_->removeWidget(item.view);
        const bool matches = menuItemMatches(*item.row, search);
        item.label->setVisible(matches);
        item.view->setVisible(matches);
        if (matches) shown.push_back(&item);
    }
    const int count = static_cast<int>(shown.size());
    const int rows = (count + columns - 1) / columns;
    for (int place = 0; place < count; ++place) {
        const Item& item = *shown[static_cast<std::size_t>(place)];
        const int column = 2 * (place / rows);
        grid_->addWidget(item.label, place % rows, column);
        grid_->addWidget(item.view, place % rows, column + 1);
    }
    setVisible(count > 0);
}

}  // namespace corvane
