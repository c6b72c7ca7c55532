#include "qt/window/band_map_view.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

#include "band_map/map_texts.h"
#include "qt/window/band_map_accessible.h"
#include "qt/window/control_texts.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

constexpr int gutter = BandMapPicture::gutter;
constexpr int linesOfStrip = 5;  // of the row on the radio page
constexpr int needleHalf = 11;   // a needle and its letter cover twice this width
constexpr int oneNotch = 120;    // of the wheel
constexpr std::array sides{'A', 'B'};

constexpr std::array conditionFields{
    &Display::day8040Field,   &Display::day3020Field,   &Display::day1715Field,
    &Display::day1210Field,   &Display::night8040Field, &Display::night3020Field,
    &Display::night1715Field, &Display::night1210Field, &Display::magicBandField,
};

std::optional<MapStep> stepOf(const QKeyEvent& event) {
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return std::nullopt;
    switch (event.key()) {
        case Qt::Key_Left:
            return MapStep::left;
        case Qt::Key_Right:
            return MapStep::right;
        case Qt::Key_Up:
            return MapStep::up;
        case Qt::Key_Down:
            return MapStep::down;
        case Qt::Key_Home:
            return MapStep::home;
        case Qt::Key_End:
            return MapStep::end;
        default:
            return std::nullopt;
    }
}

}  // namespace

BandMapView::BandMapView(BandMap& map, Display& display, Extent extent, ChangeQueue& queue, QWidget* parent)
    : QWidget(parent), map_(map), display_(display), extent_(extent), painter_(display), entries_(map.entries()) {
    makeBandMapAccessible();  // before anything that may be read out
    const bool all = extent == Extent::allBands;
    setObjectName(all ? "bandMap" : "bandMapStrip");
    setAccessibleName(all ? "Band map" : "Band map, active band");
    setToolTip(
        "Press an entry or a free place to tune to it; the wheel steps. With the keyboard: Left and Right go from "
        "entry to entry, Up and Down from band to band, Enter tunes.");
    setAccessibleDescription(toolTip());
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, all ? QSizePolicy::Expanding : QSizePolicy::Fixed);
    for (const MapKind& kind : mapKinds) follow(display.*kind.table, queue, &BandMapView::refresh);
    follow(display.watchListTable, queue, &BandMapView::refresh);
    for (Control* control : std::initializer_list<Control*>{&display.vqFreqAButton, &display.vqFreqBButton,
                                                            &display.channelFrequencyAField,
                                                            &display.channelFrequencyBField, &display.activeVfoField})
        follow(*control, queue, &BandMapView::moveNeedles);
    for (const auto field : conditionFields) follow(display.*field, queue, &BandMapView::repicture);
    follow(display.ownClassPopUpButton, queue, &BandMapView::repicture);
    follow(display.linkStatusField, queue, &BandMapView::showHint);
    minute_.setInterval(std::chrono::seconds(15));
    connect(&minute_, &QTimer::timeout, this, &BandMapView::refresh);
}

void BandMapView::follow(Control& control, ChangeQueue& queue, void (BandMapView::*take)()) {
    views_.push_back(control.addView(queue, [this, take] {
        if (isVisible()) (this->*take)();
    }));
}

QSize BandMapView::sizeHint() const {
    const double line = painter_.lineHeight();
    const int width = gutter + BandMapPicture::margin + 100 * gridStep;
    if (extent_ == Extent::activeBand) return {width, static_cast<int>(linesOfStrip * line)};
    return {width, static_cast<int>(std::ceil(leastRowHeight(line)) * mapBands.size() + 2 * line)};
}

void BandMapView::refresh() {
    const auto& entries = map_.entries();
    const auto active = map_.activeBand();
    const MapSpace space{static_cast<double>(width() - gutter - BandMapPicture::margin), static_cast<double>(height()),
                         painter_.lineHeight()};
    const bool same = !rows_.empty() && entries_ == entries && active_ == active;
    if (same) return;
    const auto before = std::exchange(entries_, entries);
    const std::size_t bandBefore = cursor_.band;
    active_ = active;
    if (active) stripBand_ = *active;
    const auto labelWidth = [this](const MapEntry& entry) { return painter_.labelWidth(entry); };
    if (extent_ == Extent::allBands)
        rows_ = layoutMap(*entries_, space, active, labelWidth);
    else
        rows_ = {layoutRow(stripBand_, entries_->bands[stripBand_], space, labelWidth)};
    if (extent_ == Extent::activeBand && cursor_.band != stripBand_) {
        cursor_ = {stripBand_};
        onEntry_ = std::nullopt;
    }
    cursor_ = followed(cursor_, onEntry_, *entries_);
    pointed_ = std::nullopt;
    // A screen reader is not to start again each minute.
    const bool samePlaces = bandBefore == cursor_.band &&
                            std::ranges::equal(before->bands[bandBefore], entries_->bands[bandBefore], sameEntry);
    if (!samePlaces) {
        placesChanged(*this);
        placeReached(*this);
    }
    repicture();
    moveNeedles();
}

void BandMapView::repicture() {
    picture_ = {};
    update();
}

void BandMapView::showHint() {
    if (!pointed_ && !hasFocus()) map_.sayWhatToDo();
}

const MapRow* BandMapView::rowOf(std::size_t band) const {
    const auto row = std::ranges::find(rows_, band, &MapRow::band);
    return row == rows_.end() ? nullptr : &*row;
}

BandMapView::Needle BandMapView::needleOf(char side) const {
    const auto hertz = map_.needle(side);
    const auto band = hertz ? mapBandOf(*hertz) : std::nullopt;
    const MapRow* row = band ? rowOf(*band) : nullptr;
    if (!row) return {};
    const double pixel = 1 / devicePixelRatioF();
    const double x = gutter + std::round(row->xOf(*hertz) / pixel) * pixel;
    const Control& shown = side == 'A' ? display_.vqFreqAButton : display_.vqFreqBButton;
    return {QRectF(x - needleHalf, row->top + 1, 2 * needleHalf, row->height - 3), map_.isActive(side),
            shown.lastKnown()};
}

void BandMapView::moveNeedles() {
    if (map_.activeBand() != active_) return refresh();
    for (std::size_t i = 0; i < sides.size(); ++i) {
        const Needle now = needleOf(sides[i]);
        const Needle before = std::exchange(needles_[i], now);
        if (before == now) continue;
        for (const QRectF& place : {before.place, now.place})
            if (!place.isEmpty()) update(place.toAlignedRect());
    }
}

void BandMapView::paintEvent(QPaintEvent* event) {
    if (rows_.empty()) refresh();
    if (picture_.isNull()) {
        picture_ = QPixmap(size() * devicePixelRatioF());
        picture_.setDevicePixelRatio(devicePixelRatioF());
        picture_.fill(Theme::current().panel);
        QPainter painter(&picture_);
        painter_.paint(painter, {rows_, *entries_, active_, map_.ownClass()});
    }
    QPainter painter(this);
    const double scale = devicePixelRatioF();
    for (const QRect& part : event->region()) {
        const QRectF source(part.x() * scale, part.y() * scale, part.width() * scale, part.height() * scale);
        painter.drawPixmap(QRectF(part), picture_, source);
    }
    for (std::size_t i = 0; i < sides.size(); ++i)
        if (event->region().intersects(needles_[i].place.toAlignedRect())) paintNeedle(painter, sides[i], needles_[i]);
    paintCursor(painter);
}

// Its letter stands on the strip, where it covers no label: A to the left of the needle, B to the right, so that both
// can be read on one frequency.
void BandMapView::paintNeedle(QPainter& painter, char side, const Needle& needle) const {
    const Theme& theme = Theme::current();
    const double x = needle.place.center().x();
    const QColor color = needle.active && !needle.stale ? theme.accent : theme.quietText;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, needle.active ? 2 : 1, needle.stale ? Qt::DotLine : Qt::SolidLine));
    painter.drawLine(QPointF(x, needle.place.top()), QPointF(x, needle.place.bottom()));
    const QFont font = BandMapPicture::font();
    const double height = painter_.lineHeight() - 1;
    const QRectF flag(side == 'A' ? x - needleHalf : x, needle.place.bottom() - height, needleHalf, height);
    painter.fillRect(flag, color);
    painter.setFont(font);
    painter.setPen(readableOn(color));
    painter.drawText(flag, Qt::AlignCenter, QChar(side));
}

void BandMapView::paintCursor(QPainter& painter) {
    if (pointed_ && pointed_->entry) {
        const MapRow& row = rows_[pointed_->row];
        painter_.paintChosen(painter, row, *pointed_->entry, entries_->bands[row.band][*pointed_->entry]);
    }
    if (!hasFocus()) return;
    const MapRow* row = rowOf(cursor_.band);
    if (!row) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Theme::current().accent, 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(1, row->top + 1, width() - 2, row->height - 3), 4, 4);
    if (const MapEntry* entry = entryAt(cursor_, *entries_)) {
        painter_.paintChosen(painter, *row, *cursor_.stop - 1, *entry);
    } else if (const auto edge = hertzAt(cursor_, *entries_)) {
        const double x = gutter + row->xOf(*edge);
        painter.drawRect(QRectF(x - 3, row->stripTop, 6, row->stripBottom - row->stripTop));
    }
}

void BandMapView::resizeEvent(QResizeEvent*) {
    rows_.clear();
    picture_ = {};
    if (isVisible()) refresh();
}

void BandMapView::showEvent(QShowEvent*) {
    minute_.start();
    map_.sayWhatToDo();
    refresh();
}

void BandMapView::hideEvent(QHideEvent*) {
    minute_.stop();
    rows_.clear();
    picture_ = {};
    pointed_ = std::nullopt;
}

void BandMapView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) repicture();
    QWidget::changeEvent(event);
}

std::optional<MapPlace> BandMapView::placeUnder(const QPointF& point) const {
    return placeAt(rows_, *entries_, point.x() - gutter, point.y());
}

bool BandMapView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto& help = static_cast<QHelpEvent&>(*event);
    const auto place = placeUnder(help.pos());
    if (!place || !place->entry) return QWidget::event(event);
    const MapEntry& entry = entries_->bands[rows_[place->row].band][*place->entry];
    QToolTip::showText(help.globalPos(), "<p>" + toQString(entryLine(entry)).toHtmlEscaped() + "</p>", this);
    return true;
}

void BandMapView::mouseMoveEvent(QMouseEvent* event) {
    const auto place = placeUnder(event->position());
    const auto entryUnder = [](const std::optional<MapPlace>& each) {
        return each && each->entry ? std::optional(std::pair(each->row, *each->entry)) : std::nullopt;
    };
    const bool other = entryUnder(place) != entryUnder(pointed_);
    pointed_ = place;
    if (other) update();
    if (!place) return map_.sayWhatToDo();
    const BandEntries& entries = entries_->bands[rows_[place->row].band];
    map_.say(place->entry ? entryLine(entries[*place->entry]) : corvane::placeText(place->hertz));
}

void BandMapView::leaveEvent(QEvent*) {
    if (pointed_ && pointed_->entry) update();
    pointed_ = std::nullopt;
    map_.sayWhatToDo();
}

void BandMapView::mousePressEvent(QMouseEvent* event) {
    const auto place = placeUnder(event->position());
    if (event->button() != Qt::LeftButton || !place) return event->ignore();
    if (!place->entry) return map_.tuneNear(place->hertz);
    const std::size_t band = rows_[place->row].band;
    moveCursor({band, *place->entry + 1});
    const MapEntry pressed = entries_->bands[band][*place->entry];
    map_.tune(pressed);
}

void BandMapView::wheelEvent(QWheelEvent* event) {
    wheel_ += event->angleDelta().y();
    const int notches = wheel_ / oneNotch;
    wheel_ -= notches * oneNotch;
    map_.step(notches);
    event->accept();
}

void BandMapView::keyPressEvent(QKeyEvent* event) {
    const auto step = stepOf(*event);
    const bool vertical = step == MapStep::up || step == MapStep::down;
    if (step && (extent_ == Extent::allBands || !vertical)) return moveCursor(walked(cursor_, *step, *entries_));
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
    if (enter && (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && !event->isAutoRepeat())
        return press(cursor_);
    QWidget::keyPressEvent(event);
}

void BandMapView::press(const MapCursor& cursor) {
    if (const MapEntry* entry = entryAt(cursor, *entries_)) {
        const MapEntry pressed = *entry;
        map_.tune(pressed);
    } else if (const auto edge = hertzAt(cursor, *entries_)) {
        map_.tuneNear(*edge);
    }
}

void BandMapView::moveCursor(const MapCursor& cursor) {
    const bool otherBand = cursor.band != cursor_.band;
    cursor_ = cursor;
    cursorPlaced_ = true;
    const MapEntry* entry = entryAt(cursor_, *entries_);
    onEntry_ = entry ? std::optional(*entry) : std::nullopt;
    if (otherBand) placesChanged(*this);
    update();
    map_.say(entry ? entryLine(*entry) : spokenPlace(cursor_, *entries_));
    placeReached(*this);
}

void BandMapView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    if (!std::exchange(cursorPlaced_, true) && active_) cursor_.band = *active_;
    update();
    placesChanged(*this);
    if (event->reason() != Qt::MouseFocusReason) moveCursor(cursor_);
}

void BandMapView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

int BandMapView::places() const { return static_cast<int>(placesOf(cursor_.band, *entries_)); }

int BandMapView::currentPlace() const { return cursor_.stop ? static_cast<int>(*cursor_.stop) + 1 : 0; }

namespace {

MapCursor cursorAt(std::size_t band, int place) {
    return place == 0 ? MapCursor{band} : MapCursor{band, static_cast<std::size_t>(place - 1)};
}

}  // namespace

QString BandMapView::placeText(int place) const {
    return toQString(spokenPlace(cursorAt(cursor_.band, place), *entries_));
}

QRect BandMapView::placeRect(int place) const {
    const MapRow* row = rowOf(cursor_.band);
    if (!row) return {};
    const QRectF whole(0, row->top, width(), row->height);
    const auto hertz = hertzAt(cursorAt(cursor_.band, place), *entries_);
    if (!hertz) return whole.toRect();
    return QRectF(gutter + row->xOf(*hertz) - needleHalf, row->markTop, 2 * needleHalf, row->stripBottom - row->markTop)
        .toRect();
}

void BandMapView::goToPlace(int place) { moveCursor(cursorAt(cursor_.band, place)); }

void BandMapView::pressPlace(int place) { press(cursorAt(cursor_.band, place)); }

}  // namespace corvane
