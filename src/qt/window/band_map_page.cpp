// The page with the band map, and its one row for the radio page.
#include <QLabel>
#include <QVBoxLayout>

#include "qt/window/band_map_marks.h"
#include "qt/window/band_map_view.h"
#include "qt/window/chip_row.h"
#include "qt/window/control_views.h"
#include "qt/window/key_button.h"
#include "qt/window/pages.h"
#include "qt/window/pop_up_view.h"
#include "qt/window/theme.h"
#include "qt/window/watch_page.h"

namespace corvane {

namespace {

// The line that tells all about what is pointed at. It keeps its height, so that the map does not jump.
QLabel* mapLine(Display& display, ChangeQueue& queue, int lines) {
    auto* line = new TextLabel(display.bandMapField, queue);
    line->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    line->setFixedHeight(lines * line->fontMetrics().lineSpacing());
    line->setForegroundRole(QPalette::WindowText);
    return line;
}

// Only while the preference is on; the map is made when it is first switched on.
class BandMapStrip : public QWidget {
public:
    BandMapStrip(BandMap& map, Display& display, ChangeQueue& queue) : map_(map), display_(display), queue_(queue) {
        auto* rows = new QVBoxLayout(this);
        rows->setContentsMargins(4 * gridStep, 0, 4 * gridStep, gridStep);
        rows->setSpacing(gridStep);
        view_ = display.menuItemPreferencesBandMap.addView(queue, [this] { showModel(); });
        showModel();
    }

private:
    void showModel() {
        const bool on = display_.menuItemPreferencesBandMap.checked();
        if (on && layout()->isEmpty()) {
            layout()->addWidget(mapLine(display_, queue_, 1));
            layout()->addWidget(new BandMapView(map_, display_, BandMapView::Extent::activeBand, queue_));
        }
        setVisible(on);
    }

    BandMap& map_;
    Display& display_;
    ChangeQueue& queue_;
    ViewHandle view_;
};

}  // namespace

QWidget* makeBandMapPage(BandMap& map, Display& display, ChangeQueue& queue) {
    auto* page = new QWidget;
    auto* rows = new QVBoxLayout(page);
    rows->setContentsMargins(4 * gridStep, 2 * gridStep, 4 * gridStep, 2 * gridStep);
    rows->setSpacing(2 * gridStep);
    auto* top = new QHBoxLayout;
    top->setSpacing(2 * gridStep);
    auto* ownClass = new PopUpView(display.ownClassPopUpButton, queue);
    ownClass->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* readOut = new KeyButton(display.readOutBandButton, queue);
    readOut->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    top->addWidget(titleLabel(display.ownClassPopUpButton, *ownClass));
    top->addWidget(ownClass);
    top->addWidget(readOut);
    top->addStretch();
    top->addLayout(refreshEveryRow(display, queue));
    rows->addLayout(top);
    rows->addLayout(
        chipRow(display, {ChipGroup::all, ChipGroup::band, ChipGroup::mode, ChipGroup::kind}, queue, markOfChip));
    rows->addWidget(new BandMapView(map, display, BandMapView::Extent::allBands, queue), 1);
    rows->addWidget(mapLine(display, queue, 2));
    return page;
}

QWidget* makeBandMapStrip(BandMap& map, Display& display, ChangeQueue& queue) {
    return new BandMapStrip(map, display, queue);
}

}  // namespace corvane
