// The shortcuts of the window, from the texts of the controls.
#pragma once

#include <QString>
#include <vector>

#include "display/display.h"

class QWidget;

namespace corvane {

struct ShortcutText {
    QString keys;     // "Ctrl+6"
    QString meaning;  // "20 meters"
};

// All shortcuts of the window in the order of the help page.
std::vector<ShortcutText> shortcutTexts(const Display& display);

// Gives `window` the shortcuts of all buttons, but for those of its menus. They work on every page.
void addShortcuts(QWidget& window, const Display& display);

}  // namespace corvane
