#include "qt/window/key_grid.h"

#include <QGridLayout>

#include "qt/window/key_button.h"
#include "qt/window/theme.h"

namespace corvane {

QLayout* keyGrid(Display& display, KeyPanel panel, ChangeQueue& queue, int columns) {
    auto* grid = new QGridLayout;
    grid->setSpacing(2 * gridStep);
    int place = 0;
    for (const FrontPanelKey& row : frontPanelKeys) {
        if (row.panel != panel) continue;
        grid->addWidget(new KeyButton(display.key(row.outlet.tag), queue), place / columns, place % columns);
        ++place;
    }
    for (int column = 0; column < columns; ++column) grid->setColumnStretch(column, 1);
    return grid;
}

}  // namespace corvane
