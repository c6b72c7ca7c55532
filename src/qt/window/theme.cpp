#include "qt/window/theme.h"

#include <QApplication>
#include <QPainter>
#include <QToolTip>
#include <QWidget>
#include <array>
#include <cmath>

namespace corvane {

namespace {

const Theme darkTheme{
    .window = QColor(0x12, 0x15, 0x19),
    .panel = QColor(0x1a, 0x1f, 0x25),
    .key = QColor(0x27, 0x2e, 0x36),
    .keyHover = QColor(0x31, 0x3a, 0x44),
    .line = QColor(0x46, 0x52, 0x5f),
    .unlit = QColor(0x2a, 0x31, 0x39),
    .text = QColor(0xe9, 0xed, 0xf1),
    .quietText = QColor(0x9d, 0xaa, 0xb7),
    .accent = QColor(0xf5, 0xb9, 0x4f),
    .link = QColor(0x9c, 0xc3, 0xea),
    .warning = QColor(0x5c, 0x2a, 0x22),
    .blue = QColor(0x2a, 0x72, 0xc4),
    .green = QColor(0x22, 0x80, 0x48),
    .orange = QColor(0xb8, 0x62, 0x14),
    .red = QColor(0xc9, 0x3d, 0x33),
    .purple = QColor(0x8d, 0x56, 0xc4),
    .pink = QColor(0xc0, 0x43, 0x7a),
    .brown = QColor(0x8a, 0x64, 0x3e),
    .gray = QColor(0x7c, 0x86, 0x91),
    .darkGray = QColor(0x45, 0x4d, 0x56),
};

const Theme lightTheme{
    .window = QColor(0xee, 0xec, 0xe6),
    .panel = QColor(0xf9, 0xf8, 0xf5),
    .key = QColor(0xff, 0xff, 0xff),
    .keyHover = QColor(0xf1, 0xee, 0xe6),
    .line = QColor(0xb4, 0xae, 0xa0),
    .unlit = QColor(0xd9, 0xd4, 0xc9),
    .text = QColor(0x1d, 0x21, 0x26),
    .quietText = QColor(0x5a, 0x61, 0x69),
    .accent = QColor(0x95, 0x52, 0x00),
    .link = QColor(0x1d, 0x5a, 0x99),
    .warning = QColor(0xf6, 0xd9, 0xd2),
    .blue = QColor(0x1f, 0x6f, 0xc4),
    .green = QColor(0x1f, 0x85, 0x49),
    .orange = QColor(0xb3, 0x5f, 0x10),
    .red = QColor(0xc2, 0x36, 0x2d),
    .purple = QColor(0x80, 0x49, 0xb6),
    .pink = QColor(0xb9, 0x3d, 0x73),
    .brown = QColor(0x86, 0x60, 0x3a),
    .gray = QColor(0x9d, 0xa1, 0xa6),
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
        case Color::orange:
            return orange;
        case Color::red:
            return red;
        case Color::purple:
            return purple;
        case Color::pink:
            return pink;
        case Color::brown:
            return brown;
        case Color::gray:
            return gray;
        case Color::darkGray:
            return darkGray;
    }
    return none;
}

const Theme& Theme::current() { return kindInUse == ThemeKind::dark ? darkTheme : lightTheme; }

ThemeKind Theme::currentKind() { return kindInUse; }

void Theme::apply(ThemeKind kind) {
    kindInUse = kind;
    const Theme& theme = current();
    QPalette colors = theme.palette();
    QApplication::setPalette(colors);
    QToolTip::setPalette(colors);
    colors.setColor(QPalette::Base, theme.panel);
    QApplication::setPalette(colors, "QComboBoxListView");
    colors.setColor(QPalette::AlternateBase, theme.window);
    colors.setColor(QPalette::Highlight, theme.key);
    colors.setColor(QPalette::HighlightedText, theme.text);
    QApplication::setPalette(colors, "QTableView");
    colors.setColor(QPalette::ButtonText, theme.quietText);
    QApplication::setPalette(colors, "QHeaderView");
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
    colors.setColor(QPalette::Link, link);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colors.setColor(QPalette::Disabled, role, mixed(quietText, panel, 0.35));
    return colors;
}

void paintFocus(const QWidget& widget, QPainter& painter) {
    if (!widget.hasFocus()) return;
    painter.setPen(QPen(Theme::current().accent, 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(widget.rect()).adjusted(1, 1, -1, -1), 4, 4);
}

QColor readableOn(const QColor& background) {
    // The relative luminance of the sRGB colour space; contrast is the ratio of two of them, each plus 0.05.
    const auto linear = [](double share) {
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    const auto luminance = [&linear](const QColor& color) {
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    };
    const QColor dark(0x10, 0x13, 0x16);
    const double withWhite = 1.05 / (luminance(background) + 0.05);
    const double withDark = (luminance(background) + 0.05) / (luminance(dark) + 0.05);
    return withWhite >= withDark ? QColor(Qt::white) : dark;
}

QFont typeface(TypeSize size, QFont::Weight weight) {
    constexpr std::array steps{0.88, 1.0, 1.05, 1.35, 3.7};
    QFont font = QApplication::font();
    const double step = steps[static_cast<std::size_t>(size)];
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * step);
    else
        font.setPixelSize(static_cast<int>(font.pixelSize() * step));
    font.setWeight(weight);
    return font;
}

}  // namespace corvane
