// The window that an alert or a dialog opens over.
#pragma once

#include <QWidget>

namespace corvane {

// The active window, or the main window when none of the program's windows is active: an alert without a parent would
// not block the window.
QWidget* parentWindow();

}  // namespace corvane
