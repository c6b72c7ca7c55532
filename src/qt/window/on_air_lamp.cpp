#include "qt/window/on_air_lamp.h"

#include <QPainter>

#include "display/spoken_state.h"
#include "qt/window/busy_widget.h"
#include "qt/window/control_texts.h"
#include "qt/window/theme.h"

namespace corvane {

OnAirLamp::OnAirLamp(Display& display, ChangeQueue& queue)
    : transmitter_(display.onAirField), segment_(display.segmentField) {
    describe(*this, transmitter_);
    const QString help = toQString(transmitter_.outlet().help) + ' ' + toQString(segment_.outlet().help);
    setToolTip(help);
    setAccessibleDescription(help);
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::TabFocus);
    setFont(typeface(TypeSize::small));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    transmitterView_ = display.onAirField.addView(queue, [this] { showModel(); });
    segmentView_ = display.segmentField.addView(queue, [this] { showModel(); });
    showModel();
}

QSize OnAirLamp::sizeHint() const {
    return {fontMetrics().horizontalAdvance("out of your segment") + 4 * gridStep,
            fontMetrics().height() + 6 * gridStep};
}

void OnAirLamp::showModel() {
    const std::string& transmitter = transmitter_.stringValue();
    setText(transmitter.empty() ? QStringLiteral("\u2013") : QString::fromStdString(transmitter));
    QString name = spokenWithValue(transmitter_, transmitter.empty()        ? "not known"
                                                 : transmitter == onAirText ? "on air"
                                                                            : transmitter);
    if (!segment_.stringValue().empty()) name += ", " + QString::fromStdString(segment_.stringValue());
    setAccessibleName(name);
    update();
}

void OnAirLamp::paintEvent(QPaintEvent*) {
    const Theme& theme = Theme::current();
    const bool lit = transmitter_.stringValue() == onAirText;
    const bool outside = !segment_.stringValue().empty();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(lit ? QPen(Qt::NoPen) : QPen(outside ? theme.orange : theme.line, outside ? 2 : 1));
    painter.setBrush(lit ? QBrush(theme.red) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 5, 5);
    paintFocus(*this, painter);
    painter.setPen(lit ? readableOn(theme.red) : outside ? theme.text : theme.quietText);
    painter.setFont(lit ? typeface(outside ? TypeSize::key : TypeSize::value, QFont::Bold) : font());
    if (!outside) {
        painter.drawText(rect(), Qt::AlignCenter, text());
        return;
    }
    const bool known = !transmitter_.stringValue().empty();
    const QRect upper(0, 0, width(), known ? height() / 2 + 1 : 0);
    const QRect lower(0, upper.height(), width(), height() - upper.height());
    if (known) painter.drawText(upper, Qt::AlignCenter, text());
    painter.setFont(font());
    const Qt::Alignment place = Qt::AlignHCenter | (known ? Qt::AlignTop : Qt::AlignVCenter);
    painter.drawText(lower, static_cast<int>(place), QString::fromStdString(segment_.stringValue()));
}

}  // namespace corvane
