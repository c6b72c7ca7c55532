// The memory channels of the transceiver, and the auto memories.
#include <QHBoxLayout>

#include "qt/window/control_views.h"
#include "qt/window/key_button.h"
#include "qt/window/key_grid.h"
#include "qt/window/pages.h"
#include "qt/window/panel.h"
#include "qt/window/table_widget.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

QHBoxLayout* row() {
    auto* layout = new QHBoxLayout;
    layout->setSpacing(2 * gridStep);
    return layout;
}

Panel* channelsPanel(Display& display, ChangeQueue& queue) {
    auto* panel = new Panel("Memory channels");
    auto* keys = row();
    keys->addWidget(new KeyButton(display.readMemoriesButton, queue));
    keys->addWidget(new KeyButton(display.writeMemoriesButton, queue));
    keys->addWidget(new KeyButton(display.exportMemoriesButton, queue));
    keys->addWidget(new KeyButton(display.importMemoriesButton, queue));
    panel->content().addLayout(keys);
    panel->content().addWidget(new TextLabel(display.memoryReadField, queue));
    panel->content().addWidget(new ProgressView(display.memoryReadProgress, queue));
    auto* table = new TableWidget(display.memoriesTable, queue);
    QObject::connect(table, &TableWidget::sorted, table,
                     [&display](const QString& order) { display.announcements.say(order.toStdString()); });
    panel->content().addWidget(table, 1);
    auto* saved = new TextLabel(display.memoryBackupField, queue);
    saved->setForegroundRole(QPalette::PlaceholderText);
    panel->content().addWidget(saved);
    return panel;
}

Panel* autoMemoriesPanel(Display& display, ChangeQueue& queue) {
    auto* panel = new Panel("Auto memories");
    auto* keys = row();
    keys->addWidget(new KeyButton(display.autoMemoryNowButton, queue));
    keys->addLayout(keyGrid(display, KeyPanel::autoMemories, queue, 1));
    panel->content().addLayout(keys);
    auto* squelch = row();
    auto* slider = new SliderView(display.autoMemSquelchSlider, queue);
    auto* level = new TextLabel(display.autoMemSquelchTextField, queue);
    level->setMinimumWidth(QFontMetrics(level->font()).horizontalAdvance("S9+60") + gridStep);
    squelch->addWidget(titleLabel(display.autoMemSquelchSlider, *slider));
    squelch->addWidget(slider, 1);
    squelch->addWidget(level);
    panel->content().addLayout(squelch);
    panel->content().addWidget(new TableWidget(display.autoMemTable, queue), 1);
    return panel;
}

}  // namespace

QWidget* makeMemoriesPage(Display& display, ChangeQueue& queue) {
    auto* page = new QWidget;
    auto* columns = new QHBoxLayout(page);
    columns->setContentsMargins(pageMargins);
    columns->setSpacing(4 * gridStep);
    columns->addWidget(channelsPanel(display, queue), 1);
    columns->addWidget(autoMemoriesPanel(display, queue), 1);
    return page;
}

}  // namespace corvane
