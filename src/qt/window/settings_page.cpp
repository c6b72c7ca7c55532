// The transceiver's setup menu, one page a group.
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>
#include <array>

#include "qt/window/control_texts.h"
#include "qt/window/key_button.h"
#include "qt/window/pages.h"
#include "qt/window/tab_pages.h"
#include "qt/window/theme.h"

namespace corvane {

namespace {

struct MenuGroupPage {
    const char* title;
    int readKeyTag;
};

constexpr std::array menuGroupPages{
    MenuGroupPage{"Radio", 2010100},
    MenuGroupPage{"CW", 2020100},
    MenuGroupPage{"Operation", 2030100},
    MenuGroupPage{"Display", 2040100},
};

QWidget* makeGroupPage(Display& display, ChangeQueue& queue, int readKeyTag) {
    auto* page = new QWidget;
    auto* rows = new QVBoxLayout(page);
    rows->setContentsMargins(pageMargins);
    auto* read = new KeyButton(display.key(readKeyTag), queue);
    read->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    rows->addWidget(read);
    auto* note =
        new QLabel("Asks the transceiver for every item of this group. This version does not show the items yet.");
    note->setForegroundRole(QPalette::PlaceholderText);
    rows->addWidget(note);
    rows->addStretch();
    return page;
}

}  // namespace

QWidget* makeSettingsPage(Display& display, ChangeQueue& queue) {
    auto* pages = new TabPages(display.settingsTab, queue);
    for (const MenuGroupPage& group : menuGroupPages)
        pages->addPage(group.title,
                       [&display, &queue, tag = group.readKeyTag] { return makeGroupPage(display, queue, tag); });
    return pages;
}

}  // namespace corvane
