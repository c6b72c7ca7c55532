// The on-line lists, one page each, and the band conditions.
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>

#include "qt/window/chip_row.h"
#include "qt/window/control_texts.h"
#include "qt/window/control_views.h"
#include "qt/window/filter_field.h"
#include "qt/window/key_button.h"
#include "qt/window/pages.h"
#include "qt/window/panel.h"
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
    auto* count = new QLabel;
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
    count->setProperty("read", true);
    top->addWidget(filter, 1);
    top->addWidget(count);
    auto* status = new TextLabel(display.*list.status, queue);
    status->setForegroundRole(QPalette::PlaceholderText);
    top->addWidget(status, 1);
    rows->addLayout(top);
    auto* chips = new QHBoxLayout;
    chips->addLayout(chipRow(display, {ChipGroup::all, ChipGroup::band, ChipGroup::mode}, queue));
    chips->addStretch();
    chips->addLayout(refreshEveryRow(display, queue));
    rows->addLayout(chips);
    rows->addWidget(table, 1);
    return page;
}

// A value on a background of its colour.
class ConditionLabel : public QLabel {
public:
    ConditionLabel(TextField& model, ChangeQueue& queue) : model_(model) {
        describe(*this, model);
        setTextFormat(Qt::PlainText);
        setFocusPolicy(Qt::TabFocus);
        setAlignment(Qt::AlignCenter);
        setMinimumWidth(16 * gridStep);
        setContentsMargins(gridStep, gridStep, gridStep, gridStep);
        view_ = model.addView(queue, [this] { showModel(); });
        showModel();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        const Theme& theme = Theme::current();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const bool empty = model_.stringValue().empty();
        const QColor fill = empty ? theme.panel : theme.of(model_.textColor(), theme.panel);
        painter.setPen(QPen(theme.line, 1));
        painter.setBrush(fill);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
        painter.setPen(empty ? theme.quietText : readableOn(fill));
        painter.drawText(rect(), Qt::AlignCenter, empty ? QStringLiteral("\u2013") : text());
        paintFocus(*this, painter);
    }

private:
    void showModel() {
        setText(QString::fromStdString(model_.stringValue()));
        setAccessibleName(spokenWithValue(model_, model_.stringValue()));
        update();
    }

    TextField& model_;
    ViewHandle view_;
};

QWidget* makeConditionsPage(Display& display, ChangeQueue& queue) {
    auto* page = new QWidget;
    auto* rows = new QVBoxLayout(page);
    rows->setContentsMargins(pageMargins);
    auto* panel = new Panel({});
    panel->follow(display.bandBox, queue, [panel, &box = display.bandBox] { panel->setTitle(toQString(box.title())); });
    auto* grid = new QGridLayout;
    grid->setSpacing(2 * gridStep);
    grid->addWidget(new QLabel("Day"), 0, 1);
    grid->addWidget(new QLabel("Night"), 0, 2);
    const std::array<std::pair<TextField*, TextField*>, 4> bands{{{&display.day8040Field, &display.night8040Field},
                                                                  {&display.day3020Field, &display.night3020Field},
                                                                  {&display.day1715Field, &display.night1715Field},
                                                                  {&display.day1210Field, &display.night1210Field}}};
    int row = 1;
    for (const auto& [day, night] : bands) {
        auto* value = new ConditionLabel(*day, queue);
        grid->addWidget(titleLabel(*day, *value), row, 0);
        grid->addWidget(value, row, 1);
        grid->addWidget(new ConditionLabel(*night, queue), row, 2);
        ++row;
    }
    row = 1;
    for (TextField* field : {&display.solarFluxField, &display.signalNoiseField, &display.magicBandField}) {
        auto* value = new ConditionLabel(*field, queue);
        grid->addWidget(titleLabel(*field, *value), row, 3);
        grid->addWidget(value, row, 4);
        ++row;
    }
    grid->setColumnMinimumWidth(3, 24 * gridStep);
    grid->setColumnStretch(5, 1);
    panel->content().addLayout(grid);
    auto* bottom = new QHBoxLayout;
    auto* refresh = new KeyButton(display.key(810), queue);
    refresh->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* status = new TextLabel(display.bandStatusField, queue);
    status->setForegroundRole(QPalette::PlaceholderText);
    bottom->addWidget(refresh);
    bottom->addWidget(status, 1);
    panel->content().addLayout(bottom);
    rows->addWidget(panel);
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
