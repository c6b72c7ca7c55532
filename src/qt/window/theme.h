// The look of the window: colours, type scale and spacing, dark and light.
#pragma once

#include <QColor>
#include <QFont>
#include <QMargins>
#include <QPalette>

#include "display/control.h"

class QPainter;
class QWidget;

namespace corvane {

enum class ThemeKind { dark, light };

struct Theme {
    QColor window;     // behind everything
    QColor panel;      // a group of controls
    QColor key;        // a key at rest
    QColor keyHover;   // under the pointer
    QColor line;       // edges
    QColor unlit;      // segments of the meter at rest
    QColor text;       // ordinary text
    QColor quietText;  // labels, units, what is not active; still readable on panel and window
    QColor accent;     // focus, the active digits, the meter
    QColor link;       // text that opens a web page
    QColor warning;    // behind a message that something went wrong
    // What the named colours of the controls are here; white or black text is readable on each.
    QColor blue, green, orange, red, purple, pink, brown, gray, darkGray;

    // The colour of a control, or `none` for a control without one.
    QColor of(Color color, const QColor& none) const;

    static const Theme& current();
    static ThemeKind currentKind();
    static void apply(ThemeKind kind);  // to every window

    QPalette palette() const;
};

// A frame around a widget that has the keyboard and paints itself.
void paintFocus(const QWidget& widget, QPainter& painter);

// White or near-black, whichever reads better on `background`.
QColor readableOn(const QColor& background);

// The type scale, in steps of the application's own font: its size is the user's choice.
enum class TypeSize { small, body, key, value, digits };
QFont typeface(TypeSize size, QFont::Weight weight = QFont::Normal);

// The grid: distances between controls are multiples of this many device-independent pixels.
inline constexpr int gridStep = 4;

// Around the contents of a page.
inline constexpr QMargins pageMargins{4 * gridStep, 4 * gridStep, 4 * gridStep, 4 * gridStep};

}  // namespace corvane
