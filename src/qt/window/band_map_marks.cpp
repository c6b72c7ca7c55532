#include "qt/window/band_map_marks.h"

#include <algorithm>

#include "qt/window/theme.h"

namespace corvane {

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

ChipButton::Mark markOfChip(Chip chip) {
    constexpr double radius = 5;
    const auto kind = std::ranges::find_if(mapKinds, [chip](const MapKind& each) { return chipOf(each.kind) == chip; });
    if (kind == mapKinds.end()) return {};
    return [kind](QPainter& painter, const QPointF& middle, bool lit, const QColor& ink) {
        paintMark(painter, kind->shape, middle, radius, lit ? ink : markColor(*kind));
    };
}

}  // namespace corvane
