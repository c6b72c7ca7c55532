// The transceiver's setup menu, one page a group, with a search over all of it.
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <array>
#include <vector>

#include "qt/window/control_texts.h"
#include "qt/window/control_views.h"
#include "qt/window/filter_field.h"
#include "qt/window/key_button.h"
#include "qt/window/menu_section.h"
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
static_assert(menuGroupPages.size() == MenuControls::pages);

int matchesOnPage(int page, std::string_view search) {
    return static_cast<int>(std::ranges::count_if(menuItems, [page, search](const MenuItemRow& row) {
        return row.page() == page && menuItemMatches(row, search);
    }));
}

// The search box, and a tab with the matching items of each group.
class SettingsPage : public QWidget {
public:
    SettingsPage(Display& display, ChangeQueue& queue) : display_(display), queue_(queue) {
        auto* rows = new QVBoxLayout(this);
        rows->setContentsMargins(0, 2 * gridStep, 0, 0);
        search_ = new QLineEdit;
        search_->setObjectName("menuSearch");
        search_->setPlaceholderText("Search the menu");
        search_->setClearButtonEnabled(true);
        search_->setAccessibleName("Search the menu");
        search_->setToolTip("Show only the items of all groups that contain all these words, e.g. ssb agc.");
        makeFilterSpeak(*search_, display, [this] {
            int matches = 0;
            for (int page = 0; page < MenuControls::pages; ++page) matches += matchesOnPage(page, searched());
            return QString::number(matches) + " items match";
        });
        auto* top = new QHBoxLayout;
        top->setContentsMargins(pageMargins.left(), 0, pageMargins.right(), 0);
        top->addWidget(search_);
        rows->addLayout(top);
        pages_ = new TabPages(display.settingsTab, queue);
        for (int page = 0; page < MenuControls::pages; ++page)
            pages_->addPage(menuGroupPages[static_cast<std::size_t>(page)].title,
                            [this, page] { return makeGroupPage(page); });
        rows->addWidget(pages_, 1);
        connect(search_, &QLineEdit::textChanged, this, [this] { showMatches(); });
    }

private:
    QWidget* makeGroupPage(int page) {
        auto* widget = new QWidget;
        auto* rows = new QVBoxLayout(widget);
        rows->setContentsMargins(pageMargins);
        rows->setSpacing(3 * gridStep);
        auto* top = new QHBoxLayout;
        top->setSpacing(3 * gridStep);
        auto* read = new KeyButton(display_.key(menuGroupPages[static_cast<std::size_t>(page)].readKeyTag), queue_);
        read->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        top->addWidget(read);
        auto* progress = new ProgressView(display_.menu.readProgress(page), queue_);
        progress->setFixedWidth(40 * gridStep);
        top->addWidget(progress);
        top->addWidget(new TextLabel(display_.menu.readField(page), queue_), 1);
        rows->addLayout(top);
        auto* nothing = new QLabel("No item of this group matches.");
        nothing->setForegroundRole(QPalette::PlaceholderText);
        rows->addWidget(nothing);
        Group& group = groups_[static_cast<std::size_t>(page)];
        group.nothing = nothing;
        for (const MenuSubMenu& subMenu : menuSubMenus) {
            if (subMenu.number / 100 - 1 != page) continue;
            group.sections.push_back(new MenuSection(subMenu, display_, queue_));
            rows->addWidget(group.sections.back());
        }
        rows->addStretch();
        showMatches(group, page);
        return widget;
    }

    std::string searched() const { return search_->text().toStdString(); }

    void showMatches() {
        for (int page = 0; page < MenuControls::pages; ++page) {
            const int matches = matchesOnPage(page, searched());
            const QString title = menuGroupPages[static_cast<std::size_t>(page)].title;
            pages_->setTabText(page, searched().empty() ? title : QString("%1 (%2)").arg(title).arg(matches));
            showMatches(groups_[static_cast<std::size_t>(page)], page);
        }
        if (matchesOnPage(pages_->currentIndex(), searched()) > 0) return;
        for (int page = 0; page < MenuControls::pages; ++page)
            if (matchesOnPage(page, searched()) > 0) return pages_->setCurrentIndex(page);
    }

    struct Group {
        QLabel* nothing = nullptr;  // until its page is made
        std::vector<MenuSection*> sections;
    };

    void showMatches(const Group& group, int page) {
        for (MenuSection* section : group.sections) section->showMatches(searched());
        if (group.nothing) group.nothing->setVisible(matchesOnPage(page, searched()) == 0);
    }

    Display& display_;
    ChangeQueue& queue_;
    QLineEdit* search_;
    TabPages* pages_;
    std::array<Group, MenuControls::pages> groups_;
};

}  // namespace

QWidget* makeSettingsPage(Display& display, ChangeQueue& queue) { return new SettingsPage(display, queue); }

}  // namespace corvane
