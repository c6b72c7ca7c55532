#include "band_map/map_layout.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace corvane {

namespace {

constexpr double rowGap = 2;
constexpr double markHeight = 9;
constexpr double laneGap = 1;
constexpr double labelGap = 6;        // between two labels of a lane
constexpr double reach = 110;         // a label stands no farther from its mark
constexpr double costOfLane = 30;     // a lane up is as bad as this much to the side
constexpr double shortestLabel = 24;  // a gap below this is of no use
constexpr double pole = 4;            // the mark's line meets the label this far from its left end
constexpr double markRadius = 6;      // a press this near means the mark
constexpr double ordinaryShare = 3;   // the active band takes as much more as this many ordinary rows, if there is room

struct Gap {
    double from;
    double to;
};

struct Spot {
    double left = 0;
    double cost = 0;
};

// The labels in one line.
class Lane {
public:
    explicit Lane(double width) : gaps_{{0, width}} {}

    std::optional<Spot> bestSpot(double x, double width) const {
        std::optional<Spot> best;
        for (const Gap& gap : gaps_) {
            if (gap.to - gap.from < width) continue;
            const double left = std::clamp(x - pole, gap.from, gap.to - width);
            const double away = std::max({0.0, left - x, x - left - width});
            const Spot spot{left, std::abs(left + pole - x)};
            if (away <= reach && (!best || spot.cost < best->cost)) best = spot;
        }
        return best;
    }
    void take(double left, double width) {
        const auto gap =
            std::ranges::find_if(gaps_, [&](const Gap& each) { return each.from <= left && left + width <= each.to; });
        const Gap after{left + width + labelGap, gap->to};
        gap->to = left - labelGap;
        gaps_.insert(gap + 1, after);
        std::erase_if(gaps_, [](const Gap& each) { return each.to - each.from < shortestLabel; });
    }
    bool full() const { return gaps_.empty(); }

private:
    std::vector<Gap> gaps_;
};

std::vector<std::size_t> inOrder(const BandEntries& entries) {
    std::vector<std::size_t> order(entries.size());
    std::iota(order.begin(), order.end(), 0U);
    std::ranges::stable_sort(order, [&](std::size_t a, std::size_t b) { return comesFirst(entries[a], entries[b]); });
    return order;
}

void placeLabels(MapRow& row, const BandEntries& entries, int lanes, const LabelWidth& labelWidth) {
    std::vector<Lane> free(static_cast<std::size_t>(std::max(lanes, 0)), Lane(row.width));
    for (const std::size_t entry : inOrder(entries)) {
        if (std::ranges::all_of(free, &Lane::full)) break;
        const double x = row.marks[entry];
        const double width = labelWidth(entries[entry]);
        std::optional<Spot> best;
        int bestLane = 0;
        for (int lane = 0; lane < lanes; ++lane) {
            auto spot = free[static_cast<std::size_t>(lane)].bestSpot(x, width);
            if (!spot) continue;
            spot->cost += lane * costOfLane;
            if (best && best->cost <= spot->cost) continue;
            best = spot;
            bestLane = lane;
        }
        if (!best) continue;
        free[static_cast<std::size_t>(bestLane)].take(best->left, width);
        row.labels.push_back({entry, best->left, width, bestLane});
    }
    row.unlabelled = static_cast<int>(entries.size() - row.labels.size());
}

void moveDown(MapRow& row, double by) {
    for (double* y : {&row.top, &row.markTop, &row.stripTop, &row.stripBottom}) *y += by;
}

}  // namespace

double MapRow::xOf(long long hertz) const {
    const Band& limits = limitsOf(band);
    return width * static_cast<double>(hertz - limits.lowerBound) / (limits.upperBound - limits.lowerBound);
}

long long MapRow::hertzAt(double x) const {
    const Band& limits = limitsOf(band);
    const double share = width > 0 ? std::clamp(x / width, 0.0, 1.0) : 0;
    return limits.lowerBound + std::llround(share * (limits.upperBound - limits.lowerBound));
}

double leastRowHeight(double lineHeight) { return 2 * lineHeight + laneGap + markHeight + rowGap; }

MapRow layoutRow(std::size_t band, const BandEntries& entries, const MapSpace& space, const LabelWidth& labelWidth) {
    MapRow row;
    row.band = band;
    row.height = space.height;
    row.width = space.width;
    row.laneHeight = space.lineHeight + laneGap;
    row.stripBottom = space.height - rowGap;
    row.stripTop = row.stripBottom - space.lineHeight;
    row.markTop = row.stripTop - markHeight;
    for (const MapEntry& entry : entries) row.marks.push_back(row.xOf(entry.hertz));
    constexpr double hair = 1e-6;
    placeLabels(row, entries, static_cast<int>(row.markTop / row.laneHeight + hair), labelWidth);
    return row;
}

std::vector<MapRow> layoutMap(const MapEntries& entries, const MapSpace& space, std::optional<std::size_t> active,
                              const LabelWidth& labelWidth) {
    constexpr double count = mapBands.size();
    const double share = space.height / (active ? count + ordinaryShare : count);
    const double ordinary = std::max(std::floor(share), std::ceil(leastRowHeight(space.lineHeight)));
    const double high = std::max(ordinary, space.height - (count - 1) * ordinary);
    std::vector<MapRow> rows;
    double top = 0;
    for (std::size_t band = 0; band < mapBands.size(); ++band) {
        const double height = band == active ? high : ordinary;
        rows.push_back(layoutRow(band, entries.bands[band], {space.width, height, space.lineHeight}, labelWidth));
        moveDown(rows.back(), top);
        top += height;
    }
    return rows;
}

std::optional<MapPlace> placeAt(const std::vector<MapRow>& rows, const MapEntries& entries, double x, double y) {
    const auto row =
        std::ranges::find_if(rows, [y](const MapRow& each) { return each.top <= y && y < each.top + each.height; });
    if (row == rows.end() || x < -markRadius || x > row->width + markRadius) return std::nullopt;
    MapPlace place{static_cast<std::size_t>(row - rows.begin()), row->hertzAt(x), std::nullopt};
    const auto label = std::ranges::find_if(row->labels, [&](const PlacedLabel& each) {
        const double top = row->laneTop(each.lane);
        return each.left <= x && x < each.left + each.width && top <= y && y < top + row->laneHeight;
    });
    if (label != row->labels.end()) {
        place.entry = label->entry;
    } else if (row->markTop <= y && y < row->stripTop) {
        double nearest = markRadius;
        for (std::size_t entry = 0; entry < row->marks.size(); ++entry) {
            const double away = std::abs(row->marks[entry] - x);
            if (away > nearest || (place.entry && away == nearest)) continue;
            nearest = away;
            place.entry = entry;
        }
    }
    if (place.entry) place.hertz = entries.bands[row->band][*place.entry].hertz;
    return place;
}

std::vector<long long> ticksOf(std::size_t band) {
    const Band& limits = limitsOf(band);
    const long long step = mapBands[band].tick;
    std::vector<long long> ticks;
    for (long long tick = (limits.lowerBound + step - 1) / step * step; tick <= limits.upperBound; tick += step)
        ticks.push_back(tick);
    return ticks;
}

}  // namespace corvane
