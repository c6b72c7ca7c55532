// The marks of the band map: a shape for each kind of entry.
#pragma once

#include <QPainter>
#include <QWidget>

#include "band_map/map_entry.h"

namespace corvane {

// Draws a shape around its middle; `ink` fills it or is its line.
void paintMark(QPainter& painter, MarkShape shape, const QPointF& middle, double radius, const QColor& ink);

QColor markColor(const MapKind& kind);

// What each shape stands for, in one line.
class BandMapLegend : public QWidget {
    Q_OBJECT

public:
    explicit BandMapLegend(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace corvane
