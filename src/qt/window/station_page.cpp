// The station: port, speed, link, and commands typed by hand.
#include <QGridLayout>
#include <QLabel>

#include "qt/window/conditions_panel.h"
#include "qt/window/control_views.h"
#include "qt/window/entry_row.h"
#include "qt/window/flow_page.h"
#include "qt/window/key_button.h"
#include "qt/window/line_panel.h"
#include "qt/window/other_programs_panel.h"
#include "qt/window/pages.h"
#include "qt/window/panel.h"
#include "qt/window/pop_up_view.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

// Plain, as each rich text on this page would delay the first picture of the window by 2 ms.
QLabel* wrappedText(const QString& text) {
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
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
    panel->content().addWidget(wrappedText(
        "1. Connect the transceiver with a USB cable and switch it on.\n\n"
        "2. Choose its port and press Connect. Of the two ports that the transceiver shows, it is usually the first. "
        "Corvane remembers it.\n\n"
        "3. After eight seconds the display follows the transceiver.\n\n"
        "No transceiver at hand? Choose Simulated transceiver.\n\n"
        "Set the transceiver's CAT speed to 38400 bits a second, with RTS on. F1 shows every shortcut."));
    panel->content().addStretch();
    return panel;
}

Panel* commandPanel(Display& display, ChangeQueue& queue) {
    auto* panel = new Panel("Commands by hand");
    panel->content().addLayout(entryRow(display.sendTextField, "FA;", {&display.sendButton}, queue));
    panel->content().addWidget(
        wrappedText("Any CAT command, with or without its last semicolon; several one after the other."
                    " What the transceiver answers shows where it belongs."));
    panel->content().addStretch();
    return panel;
}

Panel* callPanel(Display& display, ChangeQueue& queue) {
    auto* panel = new Panel("Operator");
    panel->content().addLayout(entryRow(display.callTextField, "N0CALL", {&display.saveCallButton}, queue));
    panel->content().addWidget(new NoticeLabel(display.callNoticeField, queue));
    panel->content().addWidget(wrappedText("Written into the transceiver's own menu, in capitals."));
    panel->content().addStretch();
    return panel;
}

}  // namespace

QWidget* makeStationPage(LineWatch& line, Display& display, ChangeQueue& queue) {
    auto* page = new FlowPage(2, 4);
    page->grid().setContentsMargins(pageMargins);
    page->add(linkPanel(display, queue), {0, 0, 4}, {0, 0, 6});
    page->add(callPanel(display, queue), {1, 0, 4}, {1, 0, 6});
    page->add(firstStepsPanel(), {0, 4, 4}, {0, 6, 6});
    page->add(commandPanel(display, queue), {1, 4, 4}, {1, 6, 6});
    page->add(makeConditionsPanel(display, queue), {0, 8, 4, 2}, {2, 0, 12});
    page->add(makeOtherProgramsPanel(display, queue), {2, 0, 6}, {3, 0, 12});
    page->add(makeLinePanel(line, display, queue), {2, 6, 6}, {4, 0, 12});
    return page;
}

}  // namespace corvane
