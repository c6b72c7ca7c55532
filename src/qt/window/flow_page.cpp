#include "qt/window/flow_page.h"

#include <QGridLayout>
#include <QResizeEvent>
#include <algorithm>
#include <map>

#include "qt/window/theme.h"

namespace corvane {

namespace {

constexpr int columnsOfGrid = 12;

}  // namespace

FlowPage::FlowPage(int takesRestWide, int takesRestNarrow, QWidget* parent)
    : QWidget(parent), grid_(new QGridLayout(this)), takesRestWide_(takesRestWide), takesRestNarrow_(takesRestNarrow) {
    grid_->setSpacing(3 * gridStep);
    for (int column = 0; column < columnsOfGrid; ++column) grid_->setColumnStretch(column, 1);
    grid_->setRowStretch(takesRestWide, 1);
}

void FlowPage::add(QWidget* panel, const Cell& wide, const Cell& narrow) {
    panels_.push_back({panel, wide, narrow});
    grid_->addWidget(panel, wide.row, wide.column, wide.rows, wide.columns);
}

void FlowPage::arrange(bool narrow) {
    narrow_ = narrow;
    for (const Placed& each : panels_) {
        const Cell& cell = narrow ? each.narrow : each.wide;
        grid_->removeWidget(each.panel);
        grid_->addWidget(each.panel, cell.row, cell.column, cell.rows, cell.columns);
    }
    grid_->setRowStretch(narrow ? takesRestWide_ : takesRestNarrow_, 0);
    grid_->setRowStretch(narrow ? takesRestNarrow_ : takesRestWide_, 1);
    updateGeometry();
}

// The widest row of the narrow arrangement.
int FlowPage::narrowWidth() const {
    std::map<int, int> rows;
    for (const Placed& each : panels_) {
        int& width = rows[each.narrow.row];
        width += each.panel->minimumSizeHint().width() + (width > 0 ? grid_->horizontalSpacing() : 0);
    }
    int widest = 0;
    for (const auto& [row, width] : rows) widest = std::max(widest, width);
    const QMargins margins = grid_->contentsMargins();
    return widest + margins.left() + margins.right();
}

QSize FlowPage::minimumSizeHint() const {
    const QSize least = QWidget::minimumSizeHint();
    return narrow_ ? least : QSize(std::min(least.width(), narrowWidth()), least.height());
}

void FlowPage::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (!narrow_) wideWidth_ = grid_->totalMinimumSize().width();
    const bool narrow = event->size().width() < wideWidth_;
    if (narrow != narrow_) arrange(narrow);
}

}  // namespace corvane
