#include "qt/window/theme.h"

#include <QApplication>
#include <array>

namespace corvane {

namespace {

const Theme darkTheme{
    .window = QColor(0x12, 0x15, 0x19),
    .panel = QColor(0x1a, 0x1f, 0x25),
    .key = QColor(0x27, 0x2e, 0x36),
    .keyHover = QColor(0x31, 0x3a, 0x44),
    .line = QColor(0x39, 0x43, 0x4e),
    .text = QColor(0xe9, 0xed, 0xf1),
    .quietText = QColor(0x9d, 0xaa, 0xb7),
    .accent = QColor(0xf5, 0xb9, 0x4f),
    .warning = QColor(0x5c, 0x2a, 0x22),
    .blue = QColor(0x2f, 0x7d, 0xd1),
    .green = QColor(0x2e, 0x9e, 0x5b),
    .red = QColor(0xd1, 0x45, 0x3b),
    .purple = QColor(0x93, 0x5c, 0xc9),
    .pink = QColor(0xd1, 0x5c, 0x8e),
    .brown = QColor(0x9b, 0x75, 0x4f),
    .darkGray = QColor(0x45, 0x4d, 0x56),
};

const Theme lightTheme{
    .window = QColor(0xee, 0xec, 0xe6),
    .panel = QColor(0xf9, 0xf8, 0xf5),
    .key = QColor(0xff, 0xff, 0xff),
    .keyHover = QColor(0xf1, 0xee, 0xe6),
    .line = QColor(0xc9, 0xc4, 0xb8),
    .text = QColor(0x1d, 0x21, 0x26),
    .quietText = QColor(0x5a, 0x61, 0x69),
    .accent = QColor(0xa8, 0x5d, 0x00),
    .warning = QColor(0xf6, 0xd9, 0xd2),
    .blue = QColor(0x1f, 0x6f, 0xc4),
    .green = QColor(0x1f, 0x85, 0x49),
    .red = QColor(0xc2, 0x36, 0x2d),
    .purple = QColor(0x80, 0x49, 0xb6),
    .pink = QColor(0xb9, 0x3d, 0x73),
    .brown = QColor(0x86, 0x60, 0x3a),
    .darkGray = QColor(0x8a, 0x8f, 0x95),
};

ThemeKind kindInUse = ThemeKind::dark;

QColor mixed(const QColor& a, const QColor& b, double share) {
    const auto mix = [share](int x, int y) { return static_cast<int>(x + (y - x) * share); };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

}  // namespace

QColor Theme::of(Color color, const QColor& none) const {
    switch (color) {
        case Color::none:
            return none;
        case Color::blue:
            return blue;
        case Color::green:
            return green;
        case Color::red:
            return red;
        case Color::purple:
            return purple;
        case Color::pink:
            return pink;
        case Color::brown:
            return brown;
        case Color::darkGray:
            return darkGray;
    }
    return none;
}

const Theme& Theme::current() { return kindInUse == ThemeKind::dark ? darkTheme : lightTheme; }

ThemeKind Theme::currentKind() { return kindInUse; }

void Theme::apply(ThemeKind kind) {
    kindInUse = kind;
    QApplication::setPalette(current().palette());
    qApp->setStyleSheet(current().styleSheet());
}

QPalette Theme::palette() const {
    QPalette colors;
    colors.setColor(QPalette::Window, window);
    colors.setColor(QPalette::WindowText, text);
    colors.setColor(QPalette::Base, key);
    colors.setColor(QPalette::AlternateBase, panel);
    colors.setColor(QPalette::Text, text);
    colors.setColor(QPalette::Button, key);
    colors.setColor(QPalette::ButtonText, text);
    colors.setColor(QPalette::BrightText, accent);
    colors.setColor(QPalette::ToolTipBase, panel);
    colors.setColor(QPalette::ToolTipText, text);
    colors.setColor(QPalette::PlaceholderText, quietText);
    colors.setColor(QPalette::Highlight, accent);
    colors.setColor(QPalette::HighlightedText, readableOn(accent));
    colors.setColor(QPalette::Link, accent);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colors.setColor(QPalette::Disabled, role, mixed(quietText, panel, 0.35));
    return colors;
}

QString Theme::styleSheet() const {
    return QStringLiteral(
               "QTabWidget::pane { border: 0; border-top: 1px solid %1; }"
               "QTabBar { background: transparent; }"
               "QTabBar::tab { background: transparent; color: %2; padding: 9px 18px; border: 0;"
               " border-bottom: 3px solid transparent; }"
               "QTabBar::tab:hover { color: %3; }"
               "QTabBar::tab:selected { color: %3; border-bottom-color: %4; }"
               "QTabBar::tab:focus { color: %4; }"
               "QComboBox, QLineEdit { background: %5; color: %3; border: 1px solid %1; border-radius: 5px;"
               " padding: 3px 8px; min-height: 22px; }"
               "QComboBox:focus, QLineEdit:focus, QPlainTextEdit:focus { border: 1px solid %4; }"
               "QComboBox[shown=\"true\"], QLineEdit[shown=\"true\"] { background: transparent; }"
               "QComboBox::drop-down { border: 0; width: 20px; }"
               "QComboBox[shown=\"true\"]::drop-down { width: 0; }"
               "QComboBox QAbstractItemView { background: %6; color: %3; selection-background-color: %4;"
               " border: 1px solid %1; }"
               "QPlainTextEdit { background: %5; color: %3; border: 1px solid %1; border-radius: 5px; padding: 4px; }"
               "QMenuBar { background: %7; } QMenuBar::item { padding: 5px 10px; background: transparent; }"
               "QMenuBar::item:selected { background: %5; border-radius: 4px; }"
               "QMenu { background: %6; border: 1px solid %1; padding: 4px; }"
               "QMenu::item { padding: 5px 26px 5px 22px; } QMenu::item:selected { background: %5; }"
               "QToolTip { background: %6; color: %3; border: 1px solid %1; padding: 4px; }"
               "QScrollBar:vertical { background: transparent; width: 10px; margin: 0; }"
               "QScrollBar:horizontal { background: transparent; height: 10px; margin: 0; }"
               "QScrollBar::handle { background: %1; border-radius: 4px; margin: 1px; min-height: 24px; min-width: "
               "24px; }"
               "QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }"
               "QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }"
               "#linkMessageField { background: %8; }"
               "QScrollArea, QScrollArea > QWidget > QWidget { background: transparent; border: 0; }")
        .arg(line.name(), quietText.name(), text.name(), accent.name(), key.name(), panel.name(), window.name(),
             warning.name());
}

QColor readableOn(const QColor& background) {
    const double brightness = 0.299 * background.redF() + 0.587 * background.greenF() + 0.114 * background.blueF();
    return brightness > 0.6 ? QColor(0x16, 0x19, 0x1d) : QColor(Qt::white);
}

QFont typeface(TypeSize size, QFont::Weight weight) {
    constexpr std::array steps{0.88, 1.0, 1.05, 1.35, 3.7};
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * steps[static_cast<std::size_t>(size)]);
    font.setWeight(weight);
    return font;
}

}  // namespace corvane
