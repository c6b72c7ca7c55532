// The window that a box or a dialog opens over.
#pragma once

#include <QWidget>

namespace corvane {

// The active window; without one of the program's windows in front, its main window: a box without a parent would hold
// up nothing.
QWidget* parentWindow();

}  // namespace corvane
