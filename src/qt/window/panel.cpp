#include "qt/window/panel.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "qt/window/theme.h"

namespace corvane {

Panel::Panel(const QString& title, QWidget* parent) : QFrame(parent), title_(new QLabel(this)) {
    title_->setTextFormat(Qt::PlainText);
    title_->setFont(typeface(TypeSize::small, QFont::DemiBold));
    setTitleQuiet(true);
    content_ = new QVBoxLayout(this);
    content_->setContentsMargins(3 * gridStep, 2 * gridStep, 3 * gridStep, 3 * gridStep);
    content_->setSpacing(2 * gridStep);
    content_->addWidget(title_);
    setTitle(title);
}

void Panel::setTitle(const QString& title) {
    title_->setText(title);
    setAccessibleName(title);
}

void Panel::setTitleQuiet(bool quiet) {
    title_->setForegroundRole(quiet ? QPalette::PlaceholderText : QPalette::WindowText);
}

void Panel::follow(Control& control, ChangeQueue& queue, const std::function<void()>& show) {
    view_ = control.addView(queue, show);
    show();
}

void Panel::paintEvent(QPaintEvent*) {
    const Theme& theme = Theme::current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(hasFocus() ? QPen(theme.accent, 2) : QPen(theme.line, 1));
    painter.setBrush(theme.panel);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
}

}  // namespace corvane
