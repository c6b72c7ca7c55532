// The on-line lists, one page each, and the band conditions.
#include <QGridLayout>
#include <QLineEdit>

#include "qt/window/chip_row.h"
#include "qt/window/conditions_panel.h"
#include "qt/window/control_texts.h"
#include "qt/window/control_views.h"
#include "qt/window/filter_field.h"
#include "qt/window/key_button.h"
#include "qt/window/pages.h"
#include "qt/window/panel.h"
#include "qt/window/read_label.h"
#include "qt/window/tab_pages.h"
#include "qt/window/table_widget.h"
#include "qt/window/theme.h"
#include "qt/window/watch_page.h"

namespace corvane {

namespace {

constexpr int noKey = 0;

struct ListPage {
    const char* title;
    TableView Display::*table;
    TextField Display::*status;
    int refreshKeyTag;  // or noKey
};

constexpr std::array listPages{
    ListPage{"POTA", &Display::potaTable, &Display::potaStatusField, 811},
    ListPage{"SOTA", &Display::sotaTable, &Display::sotaStatusField, 813},
    ListPage{"NetLogger", &Display::netLoggerTable, &Display::netLoggerStatusField, 812},
    ListPage{"Nets", &Display::netsTable, &Display::netsStatusField, 814},
    ListPage{"Medium wave", &Display::mwTable, &Display::mwStatusField, noKey},
};

// At the top a refresh key, a filter, the number of rows that pass it, and when the list was fetched; below, the table.
QWidget* makeListPage(Display& display, ChangeQueue& queue, const ListPage& list) {
    auto* page = new QWidget;
    auto* rows = new QVBoxLayout(page);
    rows->setContentsMargins(pageMargins);
    rows->setSpacing(2 * gridStep);
    auto* top = new QHBoxLayout;
    top->setSpacing(2 * gridStep);
    if (list.refreshKeyTag != noKey) {
        auto* refresh = new KeyButton(display.key(list.refreshKeyTag), queue);
        refresh->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        top->addWidget(refresh);
    }
    TableView& model = display.*list.table;
    const QString name = labelOf(model);
    auto* table = new TableWidget(model, queue);
    auto* filter = new QLineEdit;
    filter->setObjectName(QString::fromStdString(model.objectName()) + "Filter");
    filter->setPlaceholderText("Filter");
    filter->setClearButtonEnabled(true);
    filter->setAccessibleName(name + ", filter");
    filter->setToolTip("Show only the rows that contain all these words.");
    auto* count = new ReadLabel;
    count->setObjectName(QString::fromStdString(model.objectName()) + "Count");
    count->setToolTip("How many rows are shown, of how many.");
    const auto showCount = [table, count, name] {
        count->setText(QString("%1 of %2").arg(table->shownRows()).arg(table->allRows()));
        count->setAccessibleName(name + ", " + count->text());
    };
    QObject::connect(table, &TableWidget::rowsChanged, count, showCount);
    QObject::connect(filter, &QLineEdit::textChanged, table, &TableWidget::setFilter);
    showCount();
    makeFilterSpeak(*filter, display, [count] { return count->text() + " match"; });
    count->setFocusPolicy(Qt::TabFocus);
    top->addWidget(filter, 1);
    top->addWidget(count);
    auto* status = new TextLabel(display.*list.status, queue);
    status->setForegroundRole(QPalette::PlaceholderText);
    top->addWidget(status, 1);
    rows->addLayout(top);
    auto* chips = new QHBoxLayout;
    chips->addLayout(chipRow(display, {ChipGroup::all, ChipGroup::band, ChipGroup::mode}, queue), 1);
    chips->addLayout(refreshEveryRow(display, queue));
    rows->addLayout(chips);
    rows->addWidget(table, 1);
    return page;
}

QWidget* makeConditionsPage(Display& display, ChangeQueue& queue) {
    auto* page = new QWidget;
    auto* rows = new QVBoxLayout(page);
    rows->setContentsMargins(pageMargins);
    rows->addWidget(makeConditionsPanel(display, queue));
    rows->addStretch();
    return page;
}

}  // namespace

QWidget* makeListsPage(Display& display, ChangeQueue& queue) {
    auto* pages = new TabPages(display.listsTab, queue);
    for (const ListPage& list : listPages)
        pages->addPage(list.title, [&display, &queue, &list] { return makeListPage(display, queue, list); });
    pages->addPage("Band conditions", [&display, &queue] { return makeConditionsPage(display, queue); });
    pages->addPage("Watch", [&display, &queue] { return makeWatchPage(display, queue); });
    return pages;
}

}  // namespace corvane
