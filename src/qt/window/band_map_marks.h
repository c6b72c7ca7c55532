// The marks of the band map: a shape for each kind of entry.
#pragma once

#include <QPainter>

#include "band_map/map_entry.h"
#include "qt/window/chip_row.h"

namespace corvane {

// Draws a shape around its middle; `ink` fills it or is its line.
void paintMark(QPainter& painter, MarkShape shape, const QPointF& middle, double radius, const QColor& ink);

QColor markColor(const MapKind& kind);

// The shape on the chip of a kind of entries; nothing for another chip.
ChipButton::Mark markOfChip(Chip chip);

}  // namespace corvane
