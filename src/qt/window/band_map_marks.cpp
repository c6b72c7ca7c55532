#include "qt/window/band_map_marks.h"

#include "qt/window/control_texts.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

constexpr double legendRadius = 5;
constexpr int legendGap = 4 * gridStep;
constexpr int legendText = 4 * gridStep;  // from the left of a mark to its word

int wordWidth(const QFontMetrics& metrics, const MapKind& kind) {
    return metrics.horizontalAdvance(toQString(kind.name));
}

}  // namespace

void paintMark(QPainter& painter, MarkShape shape, const QPointF& middle, double radius, const QColor& ink) {
    const double x = middle.x(), y = middle.y(), r = radius;
    const bool hollow = shape == MarkShape::ring || shape == MarkShape::cross;
    painter.setPen(hollow ? QPen(ink, r * 0.5) : QPen(Qt::NoPen));
    painter.setBrush(hollow ? QBrush(Qt::NoBrush) : QBrush(ink));
    switch (shape) {
        case MarkShape::disc:
            return painter.drawEllipse(middle, r * 0.9, r * 0.9);
        case MarkShape::ring:
            return painter.drawEllipse(middle, r * 0.75, r * 0.75);
        case MarkShape::triangle:
            return painter.drawPolygon(QPolygonF({{x, y - r}, {x + r, y + r * 0.8}, {x - r, y + r * 0.8}}));
        case MarkShape::square:
            return painter.drawRect(QRectF(x - r * 0.8, y - r * 0.8, r * 1.6, r * 1.6));
        case MarkShape::diamond:
            return painter.drawPolygon(QPolygonF({{x, y - r}, {x + r, y}, {x, y + r}, {x - r, y}}));
        case MarkShape::cross:
            painter.drawLine(QPointF(x - r * 0.8, y - r * 0.8), QPointF(x + r * 0.8, y + r * 0.8));
            return painter.drawLine(QPointF(x - r * 0.8, y + r * 0.8), QPointF(x + r * 0.8, y - r * 0.8));
        case MarkShape::pennant:
            return painter.drawPolygon(QPolygonF({{x - r * 0.8, y - r},
                                                  {x + r, y - r * 0.3},
                                                  {x - r * 0.3, y + r * 0.4},
                                                  {x - r * 0.3, y + r},
                                                  {x - r * 0.8, y + r}}));
    }
}

// The colours behind text are too dark for a small mark on a dark ground.
QColor markColor(const MapKind& kind) {
    const Theme& theme = Theme::current();
    const QColor color = theme.of(kind.color, theme.text);
    return Theme::currentKind() == ThemeKind::dark ? color.lighter(150) : color;
}

BandMapLegend::BandMapLegend(QWidget* parent) : QWidget(parent) {
    setFont(typeface(TypeSize::small));
    setAccessibleName("Shapes on the band map");
    setToolTip("What the shapes on the band map stand for.");
}

QSize BandMapLegend::sizeHint() const {
    const QFontMetrics metrics(font());
    int width = 0;
    for (const MapKind& kind : mapKinds) width += legendText + wordWidth(metrics, kind) + legendGap;
    return {width, metrics.height() + 2 * gridStep};
}

void BandMapLegend::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QFontMetrics metrics(font());
    double x = 0;
    for (const MapKind& kind : mapKinds) {
        paintMark(painter, kind.shape, {x + legendRadius + 1, height() / 2.0}, legendRadius, markColor(kind));
        painter.setPen(Theme::current().quietText);
        const int width = wordWidth(metrics, kind);
        painter.drawText(QRectF(x + legendText, 0, width + 2, height()), Qt::AlignVCenter, toQString(kind.name));
        x += legendText + width + legendGap;
    }
}

}  // namespace corvane
