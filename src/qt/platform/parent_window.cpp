#include "qt/platform/parent_window.h"

#include <QApplication>
#include <QMainWindow>

namespace corvane {

QWidget* parentWindow() {
    if (QWidget* active = QApplication::activeWindow()) return active;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && qobject_cast<QMainWindow*>(window)) return window;
    return nullptr;
}

}  // namespace corvane
