#include "qt/window/shortcuts.h"

#include <QShortcut>
#include <array>

#include "qt/window/control_texts.h"

namespace corvane {

namespace {

bool isKey(const Control& control) { return frontPanelKeyIndex(control.outlet().tag) < frontPanelKeys.size(); }

// The controls with a shortcut: the front-panel keys, or all others.
std::vector<Control*> withShortcut(const Display& display, bool keys) {
    std::vector<Control*> found;
    for (Control* control : display.controls())
        if (!control->outlet().shortcut.empty() && isKey(*control) == keys) found.push_back(control);
    return found;
}

void add(std::vector<ShortcutText>& texts, const std::vector<Control*>& controls) {
    for (const Control* control : controls) texts.push_back({toQString(control->outlet().shortcut), labelOf(*control)});
}

// Only the steps repeat while they are held: nothing else should go out many times by accident.
bool repeats(const Control& control) {
    return isKey(control) && frontPanelKeys[frontPanelKeyIndex(control.outlet().tag)].panel == KeyPanel::steps;
}

// In a table and on the band map.
const std::array tableKeys{
    ShortcutText{"Enter, Space", "Table: press, open or edit the cell; pop-up: open it"},
    ShortcutText{"Ctrl+Enter", "Table: tune to the row"},
    ShortcutText{"Alt+Up, Alt+Down", "Memory channels: move the row"},
    ShortcutText{"Shift+F10", "Table: its menu, with sorting"},
    ShortcutText{"Arrow keys", "Keys side by side: the next one"},
    ShortcutText{"Left, Right", "Band map: from entry to entry; Enter tunes"},
    ShortcutText{"Up, Down", "Band map: from band to band"},
    ShortcutText{"Home, End", "Band map: the edges of the band"},
};

}  // namespace

std::vector<ShortcutText> shortcutTexts(const Display& display) {
    std::vector<ShortcutText> texts{
        {"F1", "This page"},
        {"Ctrl+Q", "Quit"},
        {"Alt+C, Alt+R, Alt+P, Alt+H", "Menus"},
        {"Alt+1 to Alt+8", "Pages"},
        {"Tab, Shift+Tab", "Next and previous control"},
        {"F6, Shift+F6", "Next and previous panel"},
    };
    add(texts, withShortcut(display, false));
    texts.insert(texts.end(), tableKeys.begin(), tableKeys.end());
    add(texts, withShortcut(display, true));
    return texts;
}

void addShortcuts(QWidget& window, const Display& display) {
    for (Control* control : display.controls()) {
        auto* button = dynamic_cast<Button*>(control);
        const bool inMenu = button == &display.openCloseButton || button == &display.sayStateButton ||
                            button == &display.readOutBandButton;
        if (!button || button->outlet().shortcut.empty() || inMenu) continue;
        auto* shortcut = new QShortcut(QKeySequence(toQString(button->outlet().shortcut)), &window);
        shortcut->setAutoRepeat(repeats(*button));
        QObject::connect(shortcut, &QShortcut::activated, &window, [button] { button->performClick(); });
    }
}

}  // namespace corvane
