#include "qt/window/band_map_picture.h"

#include <QFontMetricsF>
#include <algorithm>
#include <set>

#include "band_map/map_segments.h"
#include "band_map/map_texts.h"
#include "qt/window/band_map_marks.h"
#include "qt/window/control_texts.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

constexpr double markRadius = 4.5;
constexpr double labelMark = 13;  // from a label's left to its text
constexpr double labelEnd = 3;    // after the text

QColor blended(const QColor& color, const QColor& ground, double share) {
    const auto mix = [share](int a, int b) { return static_cast<int>(a * share + b * (1 - share)); };
    return {mix(color.red(), ground.red()), mix(color.green(), ground.green()), mix(color.blue(), ground.blue())};
}

QString tickText(long long hertz, int step) {
    if (hertz < 1'800'000) return QString::number(hertz / 1000);
    return QString::number(static_cast<double>(hertz) / 1e6, 'f', step % 100'000 == 0 ? 1 : 2);
}

QFont strong(QFont font) {
    font.setWeight(QFont::DemiBold);
    return font;
}

}  // namespace

BandMapPicture::BandMapPicture(const Display& display) : display_(display) {}

QFont BandMapPicture::font() { return typeface(TypeSize::small); }

double BandMapPicture::lineHeight() const { return std::ceil(QFontMetricsF(font()).height()); }

double BandMapPicture::labelWidth(const MapEntry& entry) {
    const QString text = toQString(labelText(entry));
    double& width = widths_[text];
    if (width == 0) width = std::ceil(QFontMetricsF(strong(font())).horizontalAdvance(text));
    return labelMark + width + labelEnd;
}

QRectF BandMapPicture::boxOf(const MapRow& row, const PlacedLabel& label) const {
    return {gutter + label.left, row.laneTop(label.lane), label.width, row.laneHeight - 1};
}

void BandMapPicture::paint(QPainter& painter, const Contents& contents) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font());
    for (const MapRow& row : contents.rows) {
        const BandEntries& entries = contents.entries.bands[row.band];
        paintBand(painter, row, entries, row.band == contents.active);
        paintStrip(painter, row, contents.ownClass);
        paintEntries(painter, row, entries);
    }
}

void BandMapPicture::paintBand(QPainter& painter, const MapRow& row, const BandEntries& entries, bool active) {
    const Theme& theme = Theme::current();
    painter.setPen(theme.unlit);
    painter.drawLine(QPointF(0, row.top + row.height - 1),
                     QPointF(gutter + row.width + margin, row.top + row.height - 1));
    if (active) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme.accent);
        painter.drawRoundedRect(QRectF(1, row.top + 3, 3, row.height - 8), 1.5, 1.5);
    }
    const double line = lineHeight();
    const QRectF place(10, row.top + 2, gutter - 16, line);
    painter.setFont(strong(font()));
    painter.setPen(active ? theme.accent : theme.text);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, toQString(mapBands[row.band].name));
    painter.setFont(font());
    painter.setPen(theme.quietText);
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, toQString(countText(entries)));
    paintConditions(painter, row.band, 10, row.top + 3 + line);
    if (row.unlabelled == 0) return;
    painter.setPen(theme.quietText);
    painter.drawText(QRectF(gutter + row.width + 4, row.markTop - line, margin - 6, line),
                     Qt::AlignRight | Qt::AlignVCenter, '+' + QString::number(row.unlabelled));
}

void BandMapPicture::paintConditions(QPainter& painter, std::size_t band, double x, double y) {
    const MapBand& row = mapBands[band];
    if (!row.day || (display_.*row.day).stringValue().empty()) return;
    const bool both = row.night;
    const auto word = [&](const QString& text) {
        painter.setPen(Theme::current().quietText);
        painter.drawText(QRectF(x, y, 60, lineHeight()), Qt::AlignLeft | Qt::AlignVCenter, text);
        x += QFontMetricsF(font()).horizontalAdvance(text) + 4;
    };
    if (both) word("day");
    x = paintChip(painter, display_.*row.day, x, y) + 8;
    if (!both) return;
    word("night");
    paintChip(painter, display_.*row.night, x, y);
}

double BandMapPicture::paintChip(QPainter& painter, const TextField& field, double x, double y) {
    const Theme& theme = Theme::current();
    const QString text = toQString(field.stringValue()).left(8);
    const QRectF chip(x, y, QFontMetricsF(font()).horizontalAdvance(text) + 8, lineHeight());
    const QColor fill = theme.of(field.textColor(), theme.key);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(chip, 4, 4);
    painter.setPen(readableOn(fill));
    painter.drawText(chip, Qt::AlignCenter, text);
    return chip.right();
}

// Where the operator's own class may transmit is filled, elsewhere only outlined.
void BandMapPicture::paintStrip(QPainter& painter, const MapRow& row, std::size_t ownClass) {
    const Theme& theme = Theme::current();
    const double line = row.stripBottom - row.stripTop;
    painter.fillRect(QRectF(gutter, row.stripTop, row.width, line), theme.unlit);
    const QFontMetricsF metrics(font());
    std::vector<StripPart> parts;
    for (const ClassSegment& segment : segmentsOf(row.band)) {
        const bool own = mayUse(segment, ownClass);
        const QColor color = theme.of(segment.color, theme.key);
        const QColor fill = blended(color, theme.panel, !own ? 0.0 : ownClass == classNotSet ? 0.35 : 0.75);
        const double left = gutter + row.xOf(segment.lower), right = gutter + row.xOf(segment.upper);
        const QRectF box(left + 0.5, row.stripTop + 0.5, std::max(right - left - 1, 1.0), line - 1);
        painter.setPen(QPen(blended(color, theme.panel, own ? 0.9 : 0.4), 1));
        painter.setBrush(fill);
        painter.drawRect(box);
        parts.push_back({box, box.left(), own ? readableOn(fill) : theme.quietText});
        const QString letters = toQString(segment.letters());
        const double width = metrics.horizontalAdvance(letters);
        if (width + 8 > box.width()) continue;
        painter.setFont(strong(font()));
        painter.setPen(parts.back().ink);
        painter.drawText(box.adjusted(4, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, letters);
        painter.setFont(font());
        parts.back().lettersEnd = left + width + 12;
    }
    paintScale(painter, row, parts);
}

// A number that would cover the letters of a class is left out.
void BandMapPicture::paintScale(QPainter& painter, const MapRow& row, const std::vector<StripPart>& parts) {
    const Theme& theme = Theme::current();
    const QFontMetricsF metrics(font());
    double free = gutter;
    for (const long long tick : ticksOf(row.band)) {
        const double x = gutter + row.xOf(tick);
        painter.setPen(theme.quietText);
        painter.drawLine(QPointF(x, row.stripTop - 2), QPointF(x, row.stripTop + 2));
        const QString text = tickText(tick, mapBands[row.band].tick);
        const double width = metrics.horizontalAdvance(text);
        const double left = std::clamp(x - width / 2, gutter + 2.0, gutter + row.width - width - 2);
        const bool covers = std::ranges::any_of(parts, [&](const StripPart& part) {
            return left < part.lettersEnd && part.box.left() < left + width + 4 && part.lettersEnd > part.box.left();
        });
        if (covers || left < free) continue;
        free = left + width + 12;
        const auto under = std::ranges::find_if(
            parts, [x](const StripPart& part) { return part.box.left() - 1 <= x && x <= part.box.right() + 1; });
        painter.setPen(under == parts.end() ? theme.quietText : under->ink);
        painter.drawText(QRectF(left, row.stripTop, width + 2, row.stripBottom - row.stripTop),
                         Qt::AlignLeft | Qt::AlignVCenter, text);
    }
}

void BandMapPicture::paintEntries(QPainter& painter, const MapRow& row, const BandEntries& entries) {
    const Theme& theme = Theme::current();
    const double markY = row.stripTop - 5.5;
    // The lines go behind all labels.
    painter.setPen(QPen(theme.line, 1));
    for (const PlacedLabel& label : row.labels) {
        const QRectF box = boxOf(row, label);
        const double x = gutter + row.marks[label.entry];
        const double foot = std::clamp(x, box.left() + 4, box.right() - 4);
        painter.drawLine(QPointF(x, markY), QPointF(foot, box.bottom()));
    }
    // What stands on the same pixel in the same shape is drawn once.
    std::set<std::pair<int, EntryKind>> drawn;
    for (std::size_t entry = 0; entry < entries.size(); ++entry) {
        const MapKind& kind = mapKind(entries[entry].kind);
        const double x = gutter + row.marks[entry];
        if (!drawn.emplace(static_cast<int>(x), kind.kind).second) continue;
        paintMark(painter, kind.shape, {x, markY}, markRadius, colorOf(entries[entry]));
    }
    for (const PlacedLabel& label : row.labels) paintLabel(painter, boxOf(row, label), entries[label.entry]);
}

// What has closed is grey.
QColor BandMapPicture::colorOf(const MapEntry& entry) {
    return entry.closed ? Theme::current().quietText : markColor(mapKind(entry.kind));
}

void BandMapPicture::paintLabel(QPainter& painter, const QRectF& box, const MapEntry& entry) {
    const Theme& theme = Theme::current();
    const MapKind& kind = mapKind(entry.kind);
    painter.fillRect(box, theme.panel);
    paintMark(painter, kind.shape, {box.left() + 6, box.center().y()}, 4, colorOf(entry));
    painter.setPen(entry.closed ? theme.quietText : theme.text);
    painter.setFont(entry.watched ? strong(font()) : font());
    painter.drawText(box.adjusted(labelMark, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, toQString(labelText(entry)));
}

void BandMapPicture::paintChosen(QPainter& painter, const MapRow& row, std::size_t entry, const MapEntry& what) {
    const Theme& theme = Theme::current();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme.accent, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(gutter + row.marks[entry], row.stripTop - 5.5), markRadius + 2, markRadius + 2);
    const auto label = std::ranges::find(row.labels, entry, &PlacedLabel::entry);
    if (label == row.labels.end()) return;
    const QRectF box = boxOf(row, *label);
    paintLabel(painter, box, what);
    painter.setPen(QPen(theme.accent, 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(-1, 0, 1, 0), 3, 3);
}

}  // namespace corvane
