// How a widget shows that its control cannot be used: it is busy for a moment, or disabled.
#pragma once

#include <QEvent>
#include <QWidget>

#include "display/control.h"

namespace corvane {

// Enables or disables the widget. When the widget that has the keyboard is disabled, its panel takes the keyboard and
// gives it back later; Qt would hand it to the next key, which the operator's next Space would press.
void enableWidget(QWidget& widget, bool enabled);

// A busy widget keeps the keyboard and its place in the tab order.
// Whether the widget ignores this key or mouse event because its control is busy. Tab still moves on.
bool heldBack(const Control& control, QEvent& event);

// Fades the widget while its control is busy.
void fadeWhileBusy(QWidget& widget, const Control& control);

// Gives the widget its accessible name, followed by ", busy" while its control is: "Power on, busy".
void setSpokenName(QWidget& widget, const Control& control, QString name);

}  // namespace corvane
