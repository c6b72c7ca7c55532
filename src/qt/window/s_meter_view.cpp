#include "qt/window/s_meter_view.h"

#include <QPainter>

#include "display/spoken_state.h"
#include "qt/window/busy_widget.h"
#include "qt/window/control_texts.h"
#include "qt/window/theme.h"

namespace corvane {

SMeterView::SMeterView(LevelIndicator& model, ChangeQueue& queue, QWidget* parent) : QProgressBar(parent) {
    describe(*this, model);
    setRange(0, model.maximum());
    setTextVisible(false);
    setFocusPolicy(Qt::TabFocus);
    setFont(typeface(TypeSize::small));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const auto show = [this, &model] {
        setValue(model.integerValue());
        fade(*this, conditionOf(model));
        setSpokenName(*this, conditionOf(model), spokenWithValue(model, spokenMeter(model.integerValue())));
    };
    view_ = model.addView(queue, show);
    show();
}

QSize SMeterView::sizeHint() const { return {60 * gridStep, QFontMetrics(font()).height() + 6 * gridStep}; }

QSize SMeterView::minimumSizeHint() const { return {40 * gridStep, sizeHint().height()}; }

void SMeterView::paintEvent(QPaintEvent*) {
    const Theme& theme = Theme::current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font());
    paintFocus(*this, painter);
    const int segments = maximum();
    const int textHeight = QFontMetrics(font()).height();
    const double step = width() / static_cast<double>(segments);
    for (int i = 0; i < segments; ++i) {
        const bool lit = i < value();
        const bool aboveS9 = i == segments - 1;
        const QRectF segment(i * step + 1, textHeight + 2, step - 3, height() - textHeight - 4);
        painter.setPen(Qt::NoPen);
        painter.setBrush(!lit ? theme.unlit : aboveS9 ? theme.red : theme.accent);
        painter.drawRoundedRect(segment, 2, 2);
        if (i % 2 == 1 && !aboveS9) continue;
        painter.setPen(lit ? theme.text : theme.quietText);
        const QString label = aboveS9 ? QStringLiteral("9+") : QString::number(i + 1);
        painter.drawText(QRectF(i * step, 0, step, textHeight), Qt::AlignCenter, label);
    }
}

}  // namespace corvane
