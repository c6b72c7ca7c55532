// The keyer: text memories of the present mode, and what the transceiver holds for each family of modes.
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>

#include "qt/window/control_texts.h"
#include "qt/window/key_button.h"
#include "qt/window/key_grid.h"
#include "qt/window/pages.h"
#include "qt/window/panel.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

QWidget* logView(TextField& log, ChangeQueue& queue) {
    auto* view = new QPlainTextEdit;
    describe(*view, log);
    view->setReadOnly(true);
    view->setTabChangesFocus(true);
    view->setPlaceholderText("What was sent, newest first");
    const auto show = [view, &log] { view->setPlainText(QString::fromStdString(log.stringValue())); };
    log.addView(queue, show);
    show();
    return view;
}

Panel* sendPanel(Display& display, ChangeQueue& queue) {
    auto* panel = new Panel({});
    const auto show = [panel, &box = display.sendBox] {
        panel->setTitle(toQString(box.title()));
        panel->setTitleColor(box.titleColor() == Color::none ? Theme::current().text : QColor());
    };
    display.sendBox.addView(queue, show);
    show();
    panel->content().addLayout(keyGrid(display, KeyPanel::textMemories, queue, 1));
    panel->content().addWidget(logView(display.sentTextMemoryField, queue), 1);
    panel->content().addLayout(keyGrid(display, KeyPanel::keyer, queue, 3));
    return panel;
}

Panel* familyPanel(const QString& title, std::deque<Button>& memories, ChangeQueue& queue) {
    auto* panel = new Panel(title);
    auto* grid = new QGridLayout;
    grid->setSpacing(2 * gridStep);
    int row = 0;
    for (Button& memory : memories) {
        auto* key = new KeyButton(memory, queue);
        auto* number = new QLabel(QString::number(row + 1));
        number->setBuddy(key);
        grid->addWidget(number, row, 0);
        grid->addWidget(key, row, 1);
        ++row;
    }
    grid->setColumnStretch(1, 1);
    panel->content().addLayout(grid);
    panel->content().addStretch();
    return panel;
}

}  // namespace

QWidget* makeKeyerPage(Display& display, ChangeQueue& queue) {
    auto* page = new QWidget;
    auto* columns = new QHBoxLayout(page);
    columns->setContentsMargins(4 * gridStep, 4 * gridStep, 4 * gridStep, 4 * gridStep);
    columns->setSpacing(4 * gridStep);
    columns->addWidget(sendPanel(display, queue), 2);
    auto* families = new QVBoxLayout;
    families->setSpacing(4 * gridStep);
    families->addWidget(familyPanel("CW memories", display.cwMemoryButtons, queue));
    families->addWidget(familyPanel("RTTY memories", display.rttyMemoryButtons, queue));
    families->addWidget(familyPanel("PSK memories", display.pskMemoryButtons, queue));
    families->addStretch();
    columns->addLayout(families, 3);
    return page;
}

}  // namespace corvane
