#include "qt/window/line_panel.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <QTimer>

#include "qt/window/control_views.h"
#include "qt/window/filter_field.h"
#include "qt/window/key_button.h"
#include "qt/window/line_rows.h"
#include "qt/window/painted_style.h"
#include "qt/window/theme.h"
#include "qt/window/tick_box.h"

namespace corvane {

namespace {

constexpr int shownLines = 4;  // without scrolling, at least; the header is one

using namespace std::chrono_literals;

constexpr auto pause = 100ms;  // between two looks

// Looks while it is in sight, and follows the newest line while that is in sight.
class LineTable : public QTableView {
public:
    explicit LineTable(LineWatch& line) : line_(line), rows_(line, this) {
        setObjectName("lineTable");
        setAccessibleName("Traffic on the line");
        setToolTip("What is sent to the transceiver and received from it, newest last.");
        setAccessibleDescription(toolTip());
        setModel(&rows_);
        setSelectionBehavior(SelectRows);
        setSelectionMode(SingleSelection);
        setTabKeyNavigation(false);
        setShowGrid(false);
        setWordWrap(false);
        verticalHeader()->hide();
        verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        verticalHeader()->setDefaultSectionSize(fontMetrics().height() + gridStep);
        horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        horizontalHeader()->setStretchLastSection(true);
        horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        horizontalHeader()->setHighlightSections(false);
        setTitleMargin(*horizontalHeader(), 3);  // above the cells' texts
        const QFontMetrics text = fontMetrics();
        setColumnWidth(LineRows::time, text.horizontalAdvance("00:00:00.000") + 4 * gridStep);
        setColumnWidth(LineRows::direction, text.horizontalAdvance("Direction") + 4 * gridStep);
        const QFontMetrics fixed(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        setColumnWidth(LineRows::bytes, fixed.horizontalAdvance("IF000014250000+000000200000;") + 3 * gridStep);
        timer_.setInterval(pause);
        connect(&timer_, &QTimer::timeout, this, [this] { look(); });
        line_.onChoice = [this] {
            if (isVisible()) look();
        };
    }
    ~LineTable() override {
        line_.onChoice = [] {};
    }
    QSize sizeHint() const override {
        return {QTableView::sizeHint().width(), shownLines * fontMetrics().lineSpacing()};
    }

protected:
    // The keyboard begins at the newest line.
    void focusInEvent(QFocusEvent* event) override {
        if (!currentIndex().isValid() && rows_.rowCount() > 0)
            setCurrentIndex(rows_.index(rows_.rowCount() - 1, LineRows::meaning));
        QTableView::focusInEvent(event);
    }
    void showEvent(QShowEvent* event) override {
        QTableView::showEvent(event);
        look();
        scrollToBottom();
        timer_.start();
    }
    void hideEvent(QHideEvent* event) override {
        timer_.stop();
        rows_.lookAway();
        QTableView::hideEvent(event);
    }

private:
    void look() {
        QScrollBar& bar = *verticalScrollBar();
        const bool atEnd = bar.value() == bar.maximum();
        const int gone = rows_.look();
        if (atEnd)
            scrollToBottom();
        else
            bar.setValue(bar.value() - gone);
    }

    LineWatch& line_;
    LineRows rows_;
    QTimer timer_;
};

QLayout* keyRow(const std::vector<Button*>& keys, ChangeQueue& queue) {
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * gridStep);
    for (Button* key : keys) {
        auto* view = new KeyButton(*key, queue);
        view->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        row->addWidget(view);
    }
    row->addStretch();
    return row;
}

}  // namespace

Panel* makeLinePanel(LineWatch& line, Display& display, ChangeQueue& queue) {
    auto* panel = new Panel("Traffic on the line");
    auto* choice = new QHBoxLayout;
    choice->setSpacing(3 * gridStep);
    auto* filter = new TextFieldView(display.lineFilterField, queue);
    filter->setPlaceholderText("Filter");
    makeFilterSpeak(*filter, display,
                    [&display] { return QString::fromStdString(display.lineCountField.stringValue()); });
    choice->addWidget(filter, 1);
    choice->addWidget(new TickBox(display.lineMeterSwitch, queue));
    choice->addWidget(new TextLabel(display.lineCountField, queue), 1);
    panel->content().addLayout(choice);
    auto* table = new LineTable(line);
    table->setMinimumHeight(table->sizeHint().height());
    panel->content().addWidget(table, 1);
    panel->content().addLayout(keyRow({&display.linePauseButton, &display.lineClearButton, &display.lineCopyButton,
                                       &display.lineSaveButton, &display.lineReportButton},
                                      queue));
    return panel;
}

}  // namespace corvane
