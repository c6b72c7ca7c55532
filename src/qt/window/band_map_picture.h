// Paints what of the band map does not move: the rows with their classes, scales, marks and labels.
#pragma once

#include <QFont>
#include <QHash>
#include <QPainter>
#include <vector>

#include "band_map/map_layout.h"

namespace corvane {

class BandMapPicture {
public:
    static constexpr int gutter = 178;  // to the left of the scales: what there is to say of each band
    static constexpr int margin = 40;   // to the right of them: how many entries have no label

    explicit BandMapPicture(const Display& display);

    static QFont font();
    double lineHeight() const;
    double labelWidth(const MapEntry& entry);

    // What the picture is made of.
    struct Contents {
        const std::vector<MapRow>& rows;
        const MapEntries& entries;
        std::optional<std::size_t> active;
        std::size_t ownClass;
    };
    void paint(QPainter& painter, const Contents& contents);
    // An entry's label and mark brought out: the keyboard or the pointer is on it.
    void paintChosen(QPainter& painter, const MapRow& row, std::size_t entry, const MapEntry& what);

private:
    void paintBand(QPainter& painter, const MapRow& row, const BandEntries& entries, bool active);
    void paintConditions(QPainter& painter, std::size_t band, double x, double y);
    double paintChip(QPainter& painter, const TextField& field, double x, double y);
    struct StripPart {  // of a class
        QRectF box;
        double lettersEnd;
        QColor ink;
    };
    void paintStrip(QPainter& painter, const MapRow& row, std::size_t ownClass);
    void paintScale(QPainter& painter, const MapRow& row, const std::vector<StripPart>& parts);
    void paintEntries(QPainter& painter, const MapRow& row, const BandEntries& entries);
    static QColor colorOf(const MapEntry& entry);
    void paintLabel(QPainter& painter, const QRectF& box, const MapEntry& entry);
    QRectF boxOf(const MapRow& row, const PlacedLabel& label) const;

    const Display& display_;
    QHash<QString, double> widths_;  // of texts; measuring one takes longer than placing it
};

}  // namespace corvane
