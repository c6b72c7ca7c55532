// Where the keyboard goes: from panel to panel, and into a page.
#pragma once

#include <QWidget>

namespace corvane {

// The first widget in `area` that the Tab key would reach; nullptr if there is none.
QWidget* firstTabStop(const QWidget& area);

// Moves the keyboard to the first control of the next panel of the window, or of the one before it, round and round.
// The header, a row of tabs, a table and a page without panels count as panels.
void stepPanel(QWidget& window, bool forward);

}  // namespace corvane
