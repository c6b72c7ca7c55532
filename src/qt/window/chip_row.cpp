#include "qt/window/chip_row.h"

#include <QPainter>
#include <algorithm>

#include "qt/window/control_texts.h"
#include "qt/window/flow_layout.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

constexpr int tickWidth = 4 * gridStep;  // with the room behind it
constexpr int markWidth = 4 * gridStep;

}  // namespace

ChipButton::ChipButton(MenuItem& model, Mark mark, ChangeQueue& queue, QWidget* parent)
    : QAbstractButton(parent), model_(model), mark_(std::move(mark)) {
    describe(*this, model);
    setText(toQString(model.outlet().title));
    setFont(typeface(TypeSize::small, QFont::DemiBold));
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::clicked, this, [this] { model_.performClick(); });
    view_ = model.addView(queue, [this] { showModel(); });
    showModel();
}

void ChipButton::showModel() {
    setChecked(model_.checked());
    update();
}

// The same lit and unlit: the chips beside it stay where they are.
QSize ChipButton::sizeHint() const {
    const QFontMetrics metrics(font());
    return {metrics.horizontalAdvance(text()) + tickWidth + (mark_ ? markWidth : 0) + 4 * gridStep,
            metrics.height() + 2 * gridStep};
}

void ChipButton::paintEvent(QPaintEvent*) {
    const Theme& theme = Theme::current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor fill = isChecked() ? theme.blue : underMouse() ? theme.keyHover : theme.panel;
    painter.setBrush(isDown() ? fill.darker(120) : fill);
    painter.setPen(hasFocus() ? QPen(theme.accent, 2) : QPen(theme.line, 1));
    const double inset = hasFocus() ? 1.0 : 0.5;
    const QRectF pill = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
    const QColor ink = isChecked() ? readableOn(fill) : theme.text;
    painter.setPen(ink);
    painter.setFont(font());
    QRect face = rect();
    if (isChecked()) {
        const QPointF start(2.0 * gridStep + 1, height() / 2.0);
        painter.setPen(QPen(ink, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(QPolygonF({start, start + QPointF(3, 3.5), start + QPointF(9, -4)}));
    }
    if (mark_) mark_(painter, {tickWidth + 2.0 * gridStep, height() / 2.0}, isChecked(), ink);
    // An unlit chip without a mark has its title in the middle.
    if (isChecked() || mark_) face.setLeft(tickWidth + (mark_ ? markWidth : 0));
    painter.setPen(ink);
    painter.drawText(face, Qt::AlignCenter, text());
}

QLayout* chipRow(Display& display, std::initializer_list<ChipGroup> groups, ChangeQueue& queue,
                 const std::function<ChipButton::Mark(Chip chip)>& markOf) {
    auto* row = new FlowLayout(gridStep);
    ChipGroup last = *groups.begin();
    for (const FilterChip& chip : filterChips) {
        if (std::ranges::find(groups, chip.group) == groups.end()) continue;
        if (std::exchange(last, chip.group) != chip.group) row->addGap(2 * gridStep);
        row->addWidget(new ChipButton(display.chip(chip.chip), markOf ? markOf(chip.chip) : ChipButton::Mark(), queue));
    }
    return row;
}

}  // namespace corvane
