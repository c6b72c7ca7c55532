// How a widget shows the condition of its control: disabled, busy for a moment, or with a value that is only the last
// known one.
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

enum class Condition { usual, busy, lastKnown };
Condition conditionOf(const Control& control);

// Fades the widget in any but its usual condition.
void fade(QWidget& widget, Condition condition);

// Gives the widget its accessible name, followed by its condition: "Power on, busy", "Mode, USB, last known".
void setSpokenName(QWidget& widget, Condition condition, const QString& name);

}  // namespace corvane
