#include "qt/window/watch_page.h"

#include <QHBoxLayout>

#include "qt/window/control_views.h"
#include "qt/window/entry_row.h"
#include "qt/window/panel.h"
#include "qt/window/pop_up_view.h"
#include "qt/window/table_widget.h"
#include "qt/window/theme.h"

namespace corvane {

QLayout* refreshEveryRow(Display& display, ChangeQueue& queue) {
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * gridStep);
    auto* popUp = new PopUpView(display.refreshEveryPopUpButton, queue);
    popUp->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    row->addWidget(titleLabel(display.refreshEveryPopUpButton, *popUp));
    row->addWidget(popUp);
    return row;
}

QWidget* makeWatchPage(Display& display, ChangeQueue& queue) {
    auto* page = new QWidget;
    auto* columns = new QHBoxLayout(page);
    columns->setContentsMargins(pageMargins);
    columns->setSpacing(4 * gridStep);

    auto* list = new Panel("Watch list");
    list->content().addLayout(entryRow(display.watchField, "K1ABC or US-1234", {&display.watchAddButton}, queue));
    list->content().addWidget(new NoticeLabel(display.watchNoticeField, queue));
    list->content().addWidget(new TableWidget(display.watchListTable, queue), 1);
    columns->addWidget(list, 1);

    auto* onAir = new Panel("On the air now");
    auto* top = new QHBoxLayout;
    top->setSpacing(4 * gridStep);
    top->addLayout(refreshEveryRow(display, queue));
    auto* how = new QLabel("Choose an interval to be told when a station appears.");
    how->setWordWrap(true);
    how->setForegroundRole(QPalette::PlaceholderText);
    const auto showHow = [how, &popUp = display.refreshEveryPopUpButton] {
        how->setText(popUp.indexOfSelectedItem() > 0 ? "You are told when a station appears or changes its frequency."
                                                     : "Choose an interval to be told when a station appears.");
    };
    showHow();
    onAir->follow(display.refreshEveryPopUpButton, queue, showHow);
    top->addWidget(how, 1);
    onAir->content().addLayout(top);
    onAir->content().addWidget(new TableWidget(display.watchTable, queue), 1);
    columns->addWidget(onAir, 3);
    return page;
}

}  // namespace corvane
