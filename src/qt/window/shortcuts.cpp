#include "qt/window/shortcuts.h"

#include <QShortcut>
#include <array>

#include "qt/window/control_texts.h"

namespace corvane {

namespace {

ShortcutText textOf(const Outlet& outlet) { return {toQString(outlet.shortcut), toQString(outlet.label)}; }

// In a table.
const std::array tableKeys{
    ShortcutText{"Enter, Space", "Table: press, open or edit the cell"},
    ShortcutText{"Ctrl+Enter", "Table: tune to the row"},
    ShortcutText{"Alt+Up, Alt+Down", "Memory channels: move the row"},
    ShortcutText{"Shift+F10", "Table: its menu, with sorting"},
};

}  // namespace

std::vector<ShortcutText> shortcutTexts(Display& display) {
    std::vector<ShortcutText> texts{
        {"F1", "This page"},
        {"Ctrl+Q", "Quit"},
        {"Alt+1 to Alt+7", "Pages"},
        {"Tab, Shift+Tab", "Next and previous control"},
        textOf(display.openCloseButton.outlet()),
        textOf(display.sendTextField.outlet()),
        textOf(display.freqTextField.outlet()),
        textOf(display.textMemoryField.outlet()),
        textOf(display.autoMemoryNowButton.outlet()),
    };
    texts.insert(texts.end(), tableKeys.begin(), tableKeys.end());
    for (const FrontPanelKey& key : frontPanelKeys)
        if (!key.outlet.shortcut.empty()) texts.push_back(textOf(key.outlet));
    return texts;
}

void addShortcuts(QWidget& window, Display& display) {
    const auto add = [&window](Button& button, bool repeats) {
        auto* shortcut = new QShortcut(QKeySequence(toQString(button.outlet().shortcut)), &window);
        shortcut->setAutoRepeat(repeats);
        QObject::connect(shortcut, &QShortcut::activated, &window, [&button] { button.performClick(); });
    };
    add(display.openCloseButton, false);
    add(display.autoMemoryNowButton, false);
    // Only the steps repeat while they are held: nothing else should go out many times by accident.
    for (const FrontPanelKey& key : frontPanelKeys)
        if (!key.outlet.shortcut.empty()) add(display.key(key.outlet.tag), key.panel == KeyPanel::steps);
}

}  // namespace corvane
