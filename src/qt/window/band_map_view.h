// The band map as a widget: one tab stop, with marks to press and to walk over. While it cannot be seen it does
// nothing.
#pragma once

#include <QMouseEvent>
#include <QPixmap>
#include <QTimer>
#include <QWidget>
#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "band_map/band_map.h"
#include "band_map/map_walk.h"
#include "qt/window/band_map_picture.h"

namespace corvane {

class BandMapView : public QWidget {
    Q_OBJECT

public:
    enum class Extent { allBands, activeBand };

    BandMapView(BandMap& map, Display& display, Extent extent, ChangeQueue& queue, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    // For a screen reader: the places of the band on which the keyboard is, see placesOf(). Place 0 is the band itself.
    int places() const;
    int currentPlace() const;
    QString placeText(int place) const;
    QRect placeRect(int place) const;
    void goToPlace(int place);
    void pressPlace(int place);
    // What is drawn, for tests and measurements.
    const std::vector<MapRow>& rows() const { return rows_; }
    const MapCursor& cursor() const { return cursor_; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { event->accept(); }
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    struct Needle {
        QRectF place = {};  // empty: the side is on none of the rows
        bool active = false;
        bool stale = false;  // last known

        bool operator==(const Needle&) const = default;
    };
    void follow(Control& control, ChangeQueue& queue, void (BandMapView::*take)());
    void refresh();      // what changes seldom: lists, rows
    void repicture();    // colours, conditions
    void moveNeedles();  // what follows the knob
    void showHint();
    Needle needleOf(char side) const;
    void paintNeedle(QPainter& painter, char side, const Needle& needle) const;
    void paintCursor(QPainter& painter);
    std::optional<MapPlace> placeUnder(const QPointF& point) const;
    const MapRow* rowOf(std::size_t band) const;
    void moveCursor(const MapCursor& cursor);
    void press(const MapCursor& cursor);

    BandMap& map_;
    Display& display_;
    const Extent extent_;
    BandMapPicture painter_;
    std::vector<ViewHandle> views_;
    QTimer minute_;  // nets come and go

    std::shared_ptr<const MapEntries> entries_;  // what rows_ are made of
    std::optional<std::size_t> active_;
    std::size_t stripBand_ = 5;  // the last active one
    std::vector<MapRow> rows_;   // empty while hidden
    QPixmap picture_;            // null until the next paint
    std::array<Needle, 2> needles_;
    MapCursor cursor_;
    bool cursorPlaced_ = false;
    std::optional<MapEntry> onEntry_;  // where the cursor is
    std::optional<MapPlace> pointed_;
    int wheel_ = 0;  // eighths of a degree that are no whole step yet
};

}  // namespace corvane
