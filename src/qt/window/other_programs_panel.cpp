#include "qt/window/other_programs_panel.h"

#include <QHBoxLayout>

#include "qt/window/control_views.h"
#include "qt/window/key_button.h"
#include "qt/window/table_widget.h"
#include "qt/window/theme.h"
#include "qt/window/tick_box.h"

namespace corvane {

namespace {

constexpr int shownPrograms = 1;  // without scrolling

QHBoxLayout* wideRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(4 * gridStep);
    return row;
}

QLayout* virtualPortRow(Display& display, ChangeQueue& queue) {
    auto* row = wideRow();
    row->addWidget(new TickBox(display.virtualPortSwitch, queue));
    row->addWidget(new TextLabel(display.virtualPortField, queue), 1);
    auto* copy = new KeyButton(display.virtualPortCopyButton, queue);
    copy->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    row->addWidget(copy);
    return row;
}

QLayout* permissionsRow(Display& display, ChangeQueue& queue) {
    auto* row = wideRow();
    row->addWidget(new TickBox(display.shareTransmitSwitch, queue));
    row->addWidget(new TickBox(display.shareStoreSwitch, queue));
    row->addStretch();
    return row;
}

// As narrow as its five digits, so that the texts beside it have room.
QLayout* portEntry(Display& display, ChangeQueue& queue) {
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * gridStep);
    auto* port = new TextFieldView(display.sharePortField, queue);
    port->setPlaceholderText("4532");
    port->setFixedWidth(port->fontMetrics().horizontalAdvance("00000") + 7 * gridStep);
    row->addWidget(titleLabel(display.sharePortField, *port));
    row->addWidget(port);
    return row;
}

}  // namespace

Panel* makeOtherProgramsPanel(Display& display, ChangeQueue& queue) {
    auto* panel = new Panel("Other programs");
    auto* row = wideRow();
    row->addWidget(new TickBox(display.shareSwitch, queue));
    row->addWidget(new TextLabel(display.shareAddressField, queue), 1);
    row->addLayout(portEntry(display, queue));
    panel->content().addLayout(row);
    panel->content().addLayout(virtualPortRow(display, queue));
    panel->content().addLayout(permissionsRow(display, queue));
    auto* portState = new TextLabel(display.virtualPortStateField, queue);
    portState->hideWhileEmpty();
    panel->content().addWidget(portState);
    panel->content().addWidget(new NoticeLabel(display.shareNoticeField, queue));
    panel->content().addWidget(new NoticeLabel(display.shareKeyedField, queue));
    panel->content().addWidget(new NoticeLabel(display.virtualPortNoticeField, queue));
    auto* table = new TableWidget(display.shareTable, queue);
    table->askForRows(shownPrograms);
    panel->content().addWidget(table, 1);
    return panel;
}

}  // namespace corvane
