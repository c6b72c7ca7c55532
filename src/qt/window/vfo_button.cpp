#include "qt/window/vfo_button.h"

#include <QPainter>
#include <utility>

#include "qt/window/busy_widget.h"
#include "qt/window/control_texts.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

// The line above the digits.
int labelHeight() { return QFontMetrics(typeface(TypeSize::small)).height() + gridStep + 2; }
const QString emptyDisplay = QStringLiteral("--.---.---");

}  // namespace

VfoButton::VfoButton(Button& model, TextField& activeVfo, TextField& channel, std::string letter, ChangeQueue& queue,
                     QWidget* parent)
    : KeyButton(model, queue, typeface(TypeSize::digits), parent),
      activeVfo_(activeVfo),
      channel_(channel),
      letter_(std::move(letter)) {
    const auto show = [this] {
        setSpokenName(*this, condition(), spokenName());
        update();
    };
    activeView_ = activeVfo_.addView(queue, show);
    channelView_ = channel_.addView(queue, show);
    show();
}

QString VfoButton::spokenName() const {
    QString name = labelOf(model());
    if (onChannel()) name += ", memory channel";
    if (!frequency().empty()) name += ", " + toQString(frequency()) + " MHz";
    return active() ? name + ", active" : name;
}

Condition VfoButton::condition() const {
    const Control& shown = onChannel() ? static_cast<const Control&>(channel_) : model();
    return shown.lastKnown() ? Condition::lastKnown : Condition::usual;
}

QString VfoButton::corner() const {
    QString words = onChannel() ? QStringLiteral("MEMORY CHANNEL \u00b7 ") : QString();
    if (condition() == Condition::lastKnown)
        words += QStringLiteral("LAST KNOWN \u00b7 ");
    else if (active())
        words += QStringLiteral("ACTIVE \u00b7 ");
    return words + "MHz";
}

QSize VfoButton::sizeHint() const {
    const QFontMetrics metrics(font());
    return {metrics.horizontalAdvance(QStringLiteral("50.000.000")) + 8 * gridStep, metrics.height() + labelHeight()};
}

// With large letters on a small screen the digits shrink.
QSize VfoButton::minimumSizeHint() const { return {sizeHint().width() * 3 / 5, sizeHint().height()}; }

QFont VfoButton::fitting(const QString& digits, int width) const {
    QFont fitted = font();
    const int wanted = QFontMetrics(fitted).horizontalAdvance(digits);
    if (wanted > width) fitted.setPointSizeF(fitted.pointSizeF() * width / wanted);
    return fitted;
}

void VfoButton::paintEvent(QPaintEvent*) {
    const Theme& theme = Theme::current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(isDown() ? theme.key : theme.panel);
    painter.setPen(hasFocus() ? QPen(theme.accent, 2) : QPen(theme.line, 1));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 8, 8);

    // A bar in the colour of the side that the transceiver works on.
    const bool live = condition() == Condition::usual;
    const QColor lamp = live ? theme.of(model().bezelColor(), active() ? theme.accent : theme.line) : theme.line;
    painter.setPen(Qt::NoPen);
    painter.setBrush(lamp);
    painter.drawRoundedRect(QRectF(8, 10, 4, height() - 20), 2, 2);

    painter.setPen(active() && live ? theme.text : theme.quietText);
    painter.setFont(typeface(TypeSize::small, QFont::DemiBold));
    painter.drawText(QRect(20, 6, width() - 32, labelHeight()), Qt::AlignLeft | Qt::AlignVCenter, labelOf(model()));
    painter.setPen(theme.quietText);
    painter.drawText(QRect(20, 6, width() - 32, labelHeight()), Qt::AlignRight | Qt::AlignVCenter, corner());

    const bool known = !frequency().empty();
    const QString title = known ? toQString(frequency()) : emptyDisplay;
    const QRect digits(16, labelHeight(), width() - 28, height() - labelHeight());
    // The hertz matter least: they are a little less bright.
    const qsizetype hertzAt = title.lastIndexOf('.');
    const QFont shown = fitting(title, digits.width());
    const int hertzWidth = QFontMetrics(shown).horizontalAdvance(title.mid(hertzAt));
    painter.setFont(shown);
    painter.setPen(active() && known && live ? theme.accent : theme.quietText);
    painter.drawText(digits.adjusted(0, 0, -hertzWidth, 0), Qt::AlignRight | Qt::AlignVCenter, title.left(hertzAt));
    QColor dim = painter.pen().color();
    dim.setAlphaF(0.85F);
    painter.setPen(dim);
    painter.drawText(digits, Qt::AlignRight | Qt::AlignVCenter, title.mid(hertzAt));
}

}  // namespace corvane
