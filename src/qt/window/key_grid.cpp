#include "qt/window/key_grid.h"

#include <QGridLayout>
#include <QLabel>
#include <algorithm>

#include "qt/window/key_button.h"
#include "qt/window/key_ring.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

// Bands are in the order of a dial, the lowest first; the two that are not amateur bands come last.
std::vector<Button*> keysOf(Display& display, KeyPanel panel) {
    std::vector<Button*> keys;
    for (const FrontPanelKey& row : frontPanelKeys)
        if (row.panel == panel) keys.push_back(&display.key(row.outlet.tag));
    if (panel == KeyPanel::bands) std::reverse(keys.begin(), keys.end() - 2);
    return keys;
}

}  // namespace

QLayout* keyGrid(Display& display, KeyPanel panel, ChangeQueue& queue, int columns) {
    auto* grid = new QGridLayout;
    grid->setSpacing(2 * gridStep);
    auto* ring = new KeyRing(columns, grid);
    int place = 0;
    for (Button* key : keysOf(display, panel)) {
        auto* view = new KeyButton(*key, queue);
        ring->add(*view);
        grid->addWidget(view, place / columns, place % columns);
        ++place;
    }
    for (int column = 0; column < columns; ++column) grid->setColumnStretch(column, 1);
    return grid;
}

QLayout* numberedKeys(const std::vector<Button*>& keys, ChangeQueue& queue) {
    auto* grid = new QGridLayout;
    grid->setSpacing(2 * gridStep);
    auto* ring = new KeyRing(1, grid);
    int row = 0;
    for (Button* key : keys) {
        auto* view = new KeyButton(*key, queue);
        ring->add(*view);
        auto* number = new QLabel(QString::number(row + 1));
        number->setForegroundRole(QPalette::PlaceholderText);
        number->setBuddy(view);
        grid->addWidget(number, row, 0);
        grid->addWidget(view, row, 1);
        ++row;
    }
    grid->setColumnStretch(1, 1);
    return grid;
}

}  // namespace corvane
