// Every shortcut, made from the same tables as the controls.
#include <QGridLayout>
#include <QLabel>
#include <array>

#include "qt/window/control_texts.h"
#include "qt/window/flow_page.h"
#include "qt/window/key_ring.h"
#include "qt/window/pages.h"
#include "qt/window/panel.h"
#include "qt/window/read_label.h"
#include "qt/window/shortcuts.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

Panel* otherProgramsPanel() {
    auto* panel = new Panel("Other programs");
    auto* text = new QLabel(
        "Tick <b>Share the transceiver</b> on the Station page, and choose <b>Hamlib NET rigctl</b> at 127.0.0.1:4532 "
        "in the other program. For one that knows only serial ports tick <b>Offer a virtual serial port</b>. They "
        "transmit only with the tick of their own. From another computer: "
        "<b>ssh -N -L 4532:127.0.0.1:4532 user@this-computer</b>, then 127.0.0.1:4532 there.");
    text->setTextFormat(Qt::RichText);
    text->setWordWrap(true);
    panel->content().addWidget(text);
    return panel;
}

Panel* troublePanel() {
    auto* panel = new Panel("When something goes wrong");
    auto* text = new QLabel(
        "<b>Traffic on the line</b> (Station page) shows what is sent and received, with its meaning. <b>Save a "
        "report</b> there, or in the menu Help, makes one text file to attach to a question. The lamp beside the "
        "S-meter says when you are <b>on air</b>, and beforehand when you would be <b>out of your segment</b>.");
    text->setTextFormat(Qt::RichText);
    text->setWordWrap(true);
    panel->content().addWidget(text);
    return panel;
}

}  // namespace

QWidget* makeHelpPage(const Display& display) {
    auto* page = new QWidget;
    auto* rows = new QVBoxLayout(page);
    rows->setContentsMargins(pageMargins);
    auto* panel = new Panel("Shortcuts");
    auto* columns = new FlowPage(2, 3);
    columns->grid().setContentsMargins(0, 0, 0, 0);
    std::array<QGridLayout*, 3> grids{};
    for (int column = 0; column < 3; ++column) {
        auto* place = new QWidget;
        auto* grid = grids[static_cast<std::size_t>(column)] = new QGridLayout(place);
        grid->setContentsMargins(0, 0, 0, 0);
        grid->setHorizontalSpacing(4 * gridStep);
        grid->setVerticalSpacing(gridStep);
        grid->setColumnStretch(1, 1);
        columns->add(place, {0, 4 * column, 4}, {column / 2, 6 * (column % 2), 6});
    }
    const std::vector<ShortcutText> shortcuts = shortcutTexts(display);
    const int rowsInColumn = static_cast<int>((shortcuts.size() + 2) / 3);
    auto* ring = new KeyRing(1, panel);  // the arrow keys read one after the other
    int place = 0;
    for (const ShortcutText& shortcut : shortcuts) {
        auto* keys = new QLabel(shortcut.keys);
        keys->setFont(typeface(TypeSize::body, QFont::DemiBold));
        auto* meaning = new ReadLabel(shortcut.meaning);
        meaning->setForegroundRole(QPalette::PlaceholderText);
        meaning->setWordWrap(true);
        meaning->setMinimumWidth(36 * gridStep);
        keys->setBuddy(meaning);
        meaning->setAccessibleName(shortcut.keys + ", " + shortcut.meaning);
        meaning->setFocusPolicy(Qt::StrongFocus);
        ring->add(*meaning);
        QGridLayout& grid = *grids[static_cast<std::size_t>(place / rowsInColumn)];
        grid.addWidget(keys, place % rowsInColumn, 0, Qt::AlignTop);
        grid.addWidget(meaning, place % rowsInColumn, 1);
        grid.setRowStretch(rowsInColumn, 1);
        ++place;
    }
    panel->content().addWidget(columns);
    rows->addWidget(panel);
    auto* texts = new QHBoxLayout;
    texts->setSpacing(2 * gridStep);
    texts->addWidget(otherProgramsPanel(), 1);
    texts->addWidget(troublePanel(), 1);
    rows->addLayout(texts);
    rows->addStretch();
    return page;
}

}  // namespace corvane
