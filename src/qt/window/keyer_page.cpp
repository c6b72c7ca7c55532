// The keyer: text memories of the present mode, and what the transceiver holds for each family of modes.
#include <QGridLayout>
#include <QPlainTextEdit>

#include "qt/window/control_texts.h"
#include "qt/window/control_views.h"
#include "qt/window/entry_row.h"
#include "qt/window/key_grid.h"
#include "qt/window/pages.h"
#include "qt/window/panel.h"
#include "qt/window/pop_up_view.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

class LogView : public QPlainTextEdit {
public:
    LogView(TextField& log, ChangeQueue& queue) {
        describe(*this, log);
        setReadOnly(true);
        setTabChangesFocus(true);
        setViewportMargins(gridStep, gridStep, gridStep, gridStep);
        setPlaceholderText("What was sent, newest first");
        const auto show = [this, &log] { setPlainText(QString::fromStdString(log.stringValue())); };
        view_ = log.addView(queue, show);
        show();
    }

private:
    ViewHandle view_;
};

Panel* sendPanel(Display& display, ChangeQueue& queue) {
    auto* panel = new Panel({});
    panel->follow(display.sendBox, queue, [panel, &box = display.sendBox] {
        panel->setTitle(toQString(box.title()));
        panel->setTitleQuiet(box.titleColor() != Color::none);
    });
    auto* columns = new QHBoxLayout;
    columns->setSpacing(4 * gridStep);
    columns->addLayout(numberedKeys({display.textMemoryButtons.begin(), display.textMemoryButtons.end()}, queue), 2);
    columns->addWidget(new LogView(display.sentTextMemoryField, queue), 1);
    panel->content().addLayout(columns);
    panel->content().addLayout(entryRow(display.textMemoryField, "Text to transmit",
                                        {&display.sendTextMemoryButton, &display.clearTextMemoryButton}, queue));
    panel->content().addWidget(new NoticeLabel(display.textMemoryNoticeField, queue));
    panel->content().addLayout(keyGrid(display, KeyPanel::keyer, queue, 3));
    return panel;
}

Panel* groupPanel(const QString& title, std::deque<Button>& memories, TextField& text, PopUpButton& memory,
                  ChangeQueue& queue) {
    auto* panel = new Panel(title);
    std::vector<Button*> keys;
    for (Button& key : memories) keys.push_back(&key);
    panel->content().addLayout(numberedKeys(keys, queue));
    auto* editor = new QHBoxLayout;
    editor->setSpacing(2 * gridStep);
    auto* field = new TextFieldView(text, queue);
    field->setPlaceholderText(toQString(text.outlet().title));
    auto* popUp = new PopUpView(memory, queue);
    popUp->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    editor->addWidget(field, 1);
    editor->addWidget(titleLabel(memory, *popUp));
    editor->addWidget(popUp);
    panel->content().addLayout(editor);
    panel->content().addStretch();
    return panel;
}

}  // namespace

QWidget* makeKeyerPage(Display& display, ChangeQueue& queue) {
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(pageMargins);
    grid->setSpacing(4 * gridStep);
    grid->addWidget(sendPanel(display, queue), 0, 0, 1, 3);
    grid->addWidget(
        groupPanel("CW memories", display.cwMemoryButtons, display.cwMemoryField, display.cwMemoryPopUpButton, queue),
        1, 0);
    grid->addWidget(groupPanel("RTTY memories", display.rttyMemoryButtons, display.rttyMemoryField,
                               display.rttyMemoryPopUpButton, queue),
                    1, 1);
    grid->addWidget(groupPanel("PSK memories", display.pskMemoryButtons, display.pskMemoryField,
                               display.pskMemoryPopUpButton, queue),
                    1, 2);
    for (int column = 0; column < 3; ++column) grid->setColumnStretch(column, 1);
    grid->addWidget(new NoticeLabel(display.memoryTextNoticeField, queue), 2, 0, 1, 3);
    grid->setRowStretch(3, 1);
    return page;
}

}  // namespace corvane
