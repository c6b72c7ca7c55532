#include "qt/window/busy_widget.h"

#include <QGraphicsOpacityEffect>
#include <QKeyEvent>
#include <QVariant>

#include "qt/window/panel.h"

namespace corvane {

namespace {

constexpr const char* keyboardOf = "keyboardOf";  // of a panel: the widget whose keyboard it holds
bool leaves(const QKeyEvent& event) { return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab; }

// The panel around the widget, else its window.
QWidget& surrounding(QWidget& widget) {
    QWidget* parent = widget.parentWidget();
    while (parent && !qobject_cast<Panel*>(parent) && !parent->isWindow()) parent = parent->parentWidget();
    return parent ? *parent : widget;
}

}  // namespace

void enableWidget(QWidget& widget, bool enabled) {
    if (widget.isEnabled() == enabled) return;
    QWidget& panel = surrounding(widget);
    const bool handsOver = !enabled && widget.hasFocus() && &panel != &widget;
    if (handsOver) {
        panel.setFocus(Qt::OtherFocusReason);
        panel.setProperty(keyboardOf, QVariant::fromValue(&widget));
    }
    widget.setEnabled(enabled);
    const bool comesBack = panel.hasFocus() && panel.property(keyboardOf).value<QWidget*>() == &widget;
    if (enabled && comesBack) widget.setFocus(Qt::OtherFocusReason);
}

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

Condition conditionOf(const Control& control) {
    if (control.busy()) return Condition::busy;
    return control.lastKnown() ? Condition::lastKnown : Condition::usual;
}

void fade(QWidget& widget, Condition condition) {
    constexpr double faded = 0.45;
    const bool fades = condition != Condition::usual;
    if ((widget.graphicsEffect() != nullptr) == fades) return;
    auto* effect = fades ? new QGraphicsOpacityEffect : nullptr;
    if (effect) effect->setOpacity(faded);
    widget.setGraphicsEffect(effect);
}

void setSpokenName(QWidget& widget, Condition condition, const QString& name) {
    QString spoken = name;
    if (condition == Condition::busy) spoken += QStringLiteral(", busy");
    if (condition == Condition::lastKnown) spoken += QStringLiteral(", last known");
    if (widget.accessibleName() != spoken) widget.setAccessibleName(spoken);
}

}  // namespace corvane
