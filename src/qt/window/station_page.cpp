// The station: port, speed, link, and commands typed by hand.
#include <QGridLayout>
#include <QLabel>

#include "qt/window/conditions_panel.h"
#include "qt/window/control_views.h"
#include "qt/window/entry_row.h"
#include "qt/window/key_button.h"
#include "qt/window/line_panel.h"
#include "qt/window/other_programs_panel.h"
#include "qt/window/pages.h"
#include "qt/window/panel.h"
#include "qt/window/pop_up_view.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

QLabel* richText(const QString& text) {
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    label->setTextFormat(Qt::RichText);
    return label;
}

Panel* linkPanel(Display& display, ChangeQueue& queue) {
    auto* panel = new Panel("Link to the transceiver");
    auto* grid = new QGridLayout;
    grid->setSpacing(2 * gridStep);
    auto* port = new PopUpView(display.PortPopUpButton, queue);
    port->setPlaceholderText("Choose a port");
    auto* speed = new PopUpView(display.BaudPopUpButton, queue);
    grid->addWidget(titleLabel(display.PortPopUpButton, *port), 0, 0);
    grid->addWidget(port, 0, 1);
    grid->addWidget(titleLabel(display.BaudPopUpButton, *speed), 1, 0);
    grid->addWidget(speed, 1, 1);
    grid->addWidget(new TextLabel(display.portDetailsField, queue), 2, 1);
    grid->addWidget(new KeyButton(display.openCloseButton, queue), 3, 1);
    grid->setColumnStretch(1, 1);
    panel->content().addLayout(grid);
    panel->content().addStretch();
    return panel;
}

Panel* firstStepsPanel() {
    auto* panel = new Panel("First steps");
    panel->content().addWidget(richText(
        "<p>1. Connect the transceiver with a USB cable and switch it on.</p>"
        "<p>2. Choose its port and press <b>Connect</b>. Of the two ports that the transceiver shows, it is usually "
        "the first."
        " Corvane remembers it.</p>"
        "<p>3. After eight seconds the display follows the transceiver.</p>"
        "<p>No transceiver at hand? Choose <b>Simulated transceiver</b>.</p>"
        "<p>Set the transceiver's CAT speed to 38400 bits a second, with RTS on. F1 shows every shortcut.</p>"));
    panel->content().addStretch();
    return panel;
}

Panel* commandPanel(Display& display, ChangeQueue& queue) {
    auto* panel = new Panel("Commands by hand");
    panel->content().addLayout(entryRow(display.sendTextField, "FA;", {&display.sendButton}, queue));
    panel->content().addWidget(
        richText("Any CAT command, with or without its last semicolon; several one after the other."
                 " What the transceiver answers shows where it belongs."));
    panel->content().addStretch();
    return panel;
}

Panel* callPanel(Display& display, ChangeQueue& queue) {
    auto* panel = new Panel("Operator");
    panel->content().addLayout(entryRow(display.callTextField, "N0CALL", {&display.saveCallButton}, queue));
    panel->content().addWidget(new NoticeLabel(display.callNoticeField, queue));
    panel->content().addWidget(richText("Written into the transceiver's own menu, in capitals."));
    panel->content().addStretch();
    return panel;
}

}  // namespace

QWidget* makeStationPage(LineWatch& line, Display& display, ChangeQueue& queue) {
    auto* page = new QWidget;
    auto* rows = new QVBoxLayout(page);
    rows->setContentsMargins(pageMargins);
    rows->setSpacing(3 * gridStep);
    auto* start = new QGridLayout;
    start->setSpacing(3 * gridStep);
    start->addWidget(linkPanel(display, queue), 0, 0);
    start->addWidget(callPanel(display, queue), 1, 0);
    start->addWidget(firstStepsPanel(), 0, 1);
    start->addWidget(commandPanel(display, queue), 1, 1);
    start->addWidget(makeConditionsPanel(display, queue), 0, 2, 2, 1);
    start->setColumnStretch(0, 5);
    start->setColumnStretch(1, 6);
    rows->addLayout(start);
    auto* traffic = new QHBoxLayout;
    traffic->setSpacing(3 * gridStep);
    traffic->addWidget(makeOtherProgramsPanel(display, queue), 12);
    traffic->addWidget(makeLinePanel(line, display, queue), 13);
    rows->addLayout(traffic, 1);
    return page;
}

}  // namespace corvane
