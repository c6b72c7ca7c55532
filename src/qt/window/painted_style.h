// Paints the standard widgets in the colours of the theme: fields, pop-ups, tables, tabs, menus, scroll bars.
//
// It paints, and is no style sheet, because Qt keeps what it made of a style sheet for each widget: 10 MiB after a
// visit to every page, and twice the time that a page takes to open.
#pragma once

#include <QIcon>
#include <QProxyStyle>

namespace corvane {

class PaintedStyle : public QProxyStyle {
    Q_OBJECT

public:
    PaintedStyle();

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
    void polish(QWidget* widget) override;
    using QProxyStyle::polish;
};

// A field or pop-up that only shows something: without a ground of its own.
void setOnlyShows(QWidget& widget, bool onlyShows);

// How far the titles of a table stand from the edges of their columns, in device-independent pixels.
void setTitleMargin(QWidget& header, int margin);

}  // namespace corvane
