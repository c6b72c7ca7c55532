#include "qt/window/read_label.h"

#include <QPainter>

#include "qt/window/theme.h"

namespace corvane {

ReadLabel::ReadLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
    setContentsMargins(3, 1, 3, 1);  // the frame, with some room beside the text
}

void ReadLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Theme::current().accent);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
}

}  // namespace corvane
