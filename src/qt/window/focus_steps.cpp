#include "qt/window/focus_steps.h"

#include <QApplication>
#include <QTabBar>
#include <algorithm>
#include <vector>

#include "qt/window/header_bar.h"
#include "qt/window/panel.h"
#include "qt/window/tab_pages.h"
#include "qt/window/table_widget.h"

namespace corvane {

namespace {

bool isTabStop(const QWidget& widget, const QWidget& area) {
    return (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget.isEnabled() && !widget.focusProxy() &&
           area.isAncestorOf(&widget) && widget.isVisibleTo(&area);
}

template <class Visit>
void forEachTabStop(const QWidget& area, Visit visit) {
    QWidget* const start = area.window();
    for (QWidget* widget = start->nextInFocusChain(); widget && widget != start; widget = widget->nextInFocusChain())
        if (isTabStop(*widget, area)) visit(widget);
}

const QWidget* panelOf(const QWidget* widget) {
    for (; widget; widget = widget->parentWidget())
        if (qobject_cast<const Panel*>(widget) || qobject_cast<const HeaderBar*>(widget) ||
            qobject_cast<const QTabBar*>(widget) || qobject_cast<const PageArea*>(widget) ||
            qobject_cast<const TableWidget*>(widget))
            return widget;
    return nullptr;
}

}  // namespace

QWidget* firstTabStop(const QWidget& area) {
    QWidget* first = nullptr;
    forEachTabStop(area, [&first](QWidget* widget) {
        if (!first) first = widget;
    });
    return first;
}

void stepPanel(QWidget& window, bool forward) {
    std::vector<std::pair<const QWidget*, QWidget*>> panels;  // with the first tab stop of each
    forEachTabStop(window, [&panels](QWidget* widget) {
        const QWidget* panel = panelOf(widget);
        const bool known = std::ranges::any_of(panels, [panel](const auto& each) { return each.first == panel; });
        if (!known) panels.emplace_back(panel, widget);
    });
    if (panels.empty()) return;
    const auto size = static_cast<std::ptrdiff_t>(panels.size());
    const auto here =
        std::ranges::find(panels, panelOf(QApplication::focusWidget()), [](const auto& each) { return each.first; });
    std::ptrdiff_t place = here == panels.end() ? (forward ? -1 : 0) : here - panels.begin();
    place = (place + (forward ? 1 : size - 1)) % size;
    panels[static_cast<std::size_t>(place)].second->setFocus(Qt::TabFocusReason);
}

}  // namespace corvane
