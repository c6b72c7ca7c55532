// What a control is called, on the screen and by a screen reader.
#pragma once

#include <QString>
#include <QWidget>
#include <string_view>

#include "display/control.h"

namespace corvane {

QString toQString(std::string_view text);

QString labelOf(const Control& control);
// "VFO A, 14.250.000"; without a value the label alone.
QString spokenWithValue(const Control& control, std::string_view value);
// The help and the shortcut: "Go to the 20 m band. (Ctrl+6)".
QString toolTipOf(const Control& control);

// A tool tip that shows a text from the web, a file or the line as it stands: Qt may take such a text for mark-up.
QString plainToolTip(const QString& text);

// Gives a widget the object name, accessible name, tool tip and description of its control.
void describe(QWidget& widget, const Control& control);

}  // namespace corvane
