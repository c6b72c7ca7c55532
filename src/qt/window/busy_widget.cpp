#include "qt/window/busy_widget.h"

#include <QGraphicsOpacityEffect>
#include <QKeyEvent>

namespace corvane {

namespace {

const QString busySuffix = QStringLiteral(", busy");

bool leaves(const QKeyEvent& event) { return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab; }

}  // namespace

bool heldBack(const Control& control, QEvent& event) {
    if (!control.busy()) return false;
    switch (event.type()) {
        case QEvent::KeyPress:
            if (leaves(static_cast<QKeyEvent&>(event))) return false;
            [[fallthrough]];
        case QEvent::KeyRelease:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
            event.ignore();
            return true;
        default:
            return false;
    }
}

void fadeWhileBusy(QWidget& widget, const Control& control) {
    constexpr double faded = 0.45;
    if ((widget.graphicsEffect() != nullptr) == control.busy()) return;
    auto* effect = control.busy() ? new QGraphicsOpacityEffect : nullptr;
    if (effect) effect->setOpacity(faded);
    widget.setGraphicsEffect(effect);
}

void setSpokenName(QWidget& widget, const Control& control, QString name) {
    if (name.endsWith(busySuffix)) name.chop(busySuffix.size());
    if (control.busy()) name += busySuffix;
    if (widget.accessibleName() != name) widget.setAccessibleName(name);
}

}  // namespace corvane
