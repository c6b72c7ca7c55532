// Where everything stands on the band map: the rows of the bands, the marks on their scales, the labels, and what is
// under a point. Lengths are device-independent pixels; x counts from the left end of the scales, y from the top row.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "band_map/map_entries.h"

namespace corvane {

struct MapSpace {
    double width;       // of a scale
    double height;      // of all rows
    double lineHeight;  // of a label
};

struct PlacedLabel {
    std::size_t entry;  // of the band
    double left;
    double width;
    int lane;  // counts from the marks up

    bool operator==(const PlacedLabel&) const = default;
};

// From the top: the lanes of labels, the marks, and the strip with the classes and the scale.
struct MapRow {
    std::size_t band = 0;  // of mapBands
    double top = 0;
    double height = 0;
    double width = 0;
    double laneHeight = 0;
    double markTop = 0;
    double stripTop = 0;
    double stripBottom = 0;
    std::vector<double> marks;        // the x of each entry
    std::vector<PlacedLabel> labels;  // no two of them overlap
    int unlabelled = 0;               // entries without room for a label

    double laneTop(int lane) const { return markTop - (lane + 1) * laneHeight; }
    double xOf(long long hertz) const;
    long long hertzAt(double x) const;  // within the band
};

// The least height of a row, which has room for one lane.
double leastRowHeight(double lineHeight);

using LabelWidth = std::function<double(const MapEntry& entry)>;

// One row; the newest entries get their labels first, each as near to its mark as there is room.
MapRow layoutRow(std::size_t band, const BandEntries& entries, const MapSpace& space, const LabelWidth& labelWidth);

// A row for each band; the active band's is higher.
std::vector<MapRow> layoutMap(const MapEntries& entries, const MapSpace& space, std::optional<std::size_t> active,
                              const LabelWidth& labelWidth);

// What is under a point.
struct MapPlace {
    std::size_t row;                   // of the layout
    long long hertz;                   // of the entry, else of the point
    std::optional<std::size_t> entry;  // of the row's band: the one whose label or mark is there

    bool operator==(const MapPlace&) const = default;
};
std::optional<MapPlace> placeAt(const std::vector<MapRow>& rows, const MapEntries& entries, double x, double y);

// The marks of a band's scale in hertz: 14'000'000, 14'050'000, ...
std::vector<long long> ticksOf(std::size_t band);

}  // namespace corvane
