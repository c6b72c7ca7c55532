// How a widget shows that its control is busy for a moment. Other than a disabled widget it keeps the keyboard and its
// place in the tab order.
#pragma once

#include <QEvent>
#include <QWidget>

#include "display/control.h"

namespace corvane {

// Whether the widget ignores this key or mouse event because its control is busy. Tab still moves on.
bool heldBack(const Control& control, QEvent& event);

// Fades the widget while its control is busy.
void fadeWhileBusy(QWidget& widget, const Control& control);

// Gives the widget its accessible name, followed by ", busy" while its control is: "Power on, busy".
void setSpokenName(QWidget& widget, const Control& control, QString name);

}  // namespace corvane
