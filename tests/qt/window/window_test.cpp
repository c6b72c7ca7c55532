// The window itself: names, focus, shortcuts, pages, repainting and size.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QSlider>
#include <QTabBar>
#include <QTableView>
#include <algorithm>
#include <map>
#include <set>

#include "qt/window/control_texts.h"
#include "qt/window/key_button.h"
#include "qt/window/shortcuts.h"
#include "qt/window/theme.h"
#include "station.h"

namespace corvane {
namespace {

constexpr int helpPage = Display::settingsPage + 1;

// Shows every page of the window, those of the settings included, one after the other.
template <class Visit>
void forEachPage(Station& station, Visit visit) {
    for (int page = 0; page <= Display::bandMapPage; ++page) {
        station.show(page);
        const bool lists = page == Display::listsPage;
        if (!lists && page != Display::settingsPage) {
            visit();
            continue;
        }
        for (int inner = 0; inner < (lists ? Display::listsPages : Display::settingsPages); ++inner) {
            station.show(lists ? station.display.listsTab : station.display.settingsTab, inner);
            visit();
        }
    }
}

// The visible widgets that can be operated or have a name for screen readers.
std::vector<QWidget*> controlsInSight(Station& station) {
    std::vector<QWidget*> controls;
    for (auto* widget : station.window.findChildren<QWidget*>()) {
        const bool control = qobject_cast<QAbstractButton*>(widget) || qobject_cast<QComboBox*>(widget) ||
                             qobject_cast<QSlider*>(widget) || qobject_cast<QLineEdit*>(widget) ||
                             qobject_cast<QPlainTextEdit*>(widget) || qobject_cast<QProgressBar*>(widget) ||
                             qobject_cast<QTableView*>(widget);
        const bool named = qobject_cast<QLabel*>(widget) && !widget->objectName().isEmpty();
        const bool partOfTabs = qobject_cast<QTabBar*>(widget->parentWidget()) != nullptr;
        if ((control || named) && !partOfTabs && widget->isVisibleTo(&station.window)) controls.push_back(widget);
    }
    return controls;
}

std::string describe(const QWidget* widget) {
    return std::string(widget->metaObject()->className()) + " \"" + widget->objectName().toStdString() + "\" \"" +
           widget->accessibleName().toStdString() + '"';
}

TEST(WindowTest, EveryControlHasItsOwnNameAndExplainsItself) {
    Station station;
    station.controller.showOperatorClass("14.250000");
    std::map<QString, QWidget*> byName;
    forEachPage(station, [&] {
        for (QWidget* control : controlsInSight(station)) {
            EXPECT_FALSE(control->objectName().isEmpty()) << describe(control);
            EXPECT_FALSE(control->accessibleName().isEmpty()) << describe(control);
            EXPECT_FALSE(control->toolTip().isEmpty()) << describe(control);
            // A control may be shown in two places, with the same name in both.
            const QWidget* other = byName.try_emplace(control->objectName(), control).first->second;
            EXPECT_EQ(other->toolTip(), control->toolTip()) << describe(control);
            EXPECT_EQ(other->accessibleName(), control->accessibleName()) << describe(control);
        }
    });
    for (const FrontPanelKey& key : frontPanelKeys) {
        if (key.panel == KeyPanel::none) continue;
        EXPECT_TRUE(byName.contains(QString::fromStdString(station.display.key(key.outlet.tag).objectName())))
            << key.outlet.label;
    }
}

// Mark-up in a text from the web, a file or the line is shown, not followed.
TEST(WindowTest, TextsOfOthersAreShownAsTheyStand) {
    Station station;
    const std::string text = "<img src='http://127.0.0.1:1/'>";
    std::set<QString> labels;
    forEachPage(station, [&] {
        for (Control* control : station.display.controls()) {
            auto* button = dynamic_cast<Button*>(control);
            if (button && button->outlet().title.empty()) button->setTitle(text);
            if (auto* box = dynamic_cast<Box*>(control)) box->setTitle(text);
            if (auto* field = dynamic_cast<TextField*>(control)) field->setStringValue(text);
        }
        QCoreApplication::processEvents();
        for (auto* widget : station.window.findChildren<QWidget*>()) {
            EXPECT_FALSE(widget->toolTip().contains("<img")) << describe(widget);
            const auto* label = qobject_cast<QLabel*>(widget);
            if (!label || !label->text().contains("<img")) continue;
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << describe(label);
            labels.insert(label->objectName());
        }
    });
    for (const char* shown : {"linkStatusField", "potaStatusField", "day8040Field", "portDetailsField", ""})
        EXPECT_TRUE(labels.contains(shown)) << shown << " (the title of a panel has no name)";
}

// A list costs more time and memory than all else of a pop-up.
TEST(WindowTest, APopUpHasNoListBeforeItIsWanted) {
    Station station;
    std::set<QWidget*> popUps;
    forEachPage(station, [&] {
        for (QWidget* control : controlsInSight(station))
            if (qobject_cast<QComboBox*>(control)) popUps.insert(control);
    });
    EXPECT_GT(popUps.size(), 150U);
    for (QWidget* popUp : popUps) EXPECT_FALSE(popUp->findChild<QAbstractItemView*>()) << describe(popUp);
    station.show(Display::radioPage);
    auto* power =
        station.window.findChild<QComboBox*>(QString::fromStdString(station.display.powerPopUpButton.objectName()));
    ASSERT_TRUE(power);
    EXPECT_TRUE(eventually([&] { return power->view()->accessibleName() == power->accessibleName(); }));
}

TEST(WindowTest, TheTabKeyReachesEveryEnabledControlOfEveryPage) {
    Station station;
    station.controller.enableTextMemoryControls();
    ASSERT_TRUE(eventually([&] { return QApplication::focusWidget() != nullptr; }));
    forEachPage(station, [&] {
        station.window.setFocus();
        std::set<QWidget*> reached, behind;
        for (QWidget* control : controlsInSight(station)) {
            const bool key = qobject_cast<KeyButton*>(control);
            if (key && (control->focusPolicy() & Qt::TabFocus) == 0) behind.insert(control);
        }
        int stops = 0;
        for (int presses = 0; presses < 300; ++presses) {
            QWidget* focused = QApplication::focusWidget();
            if (!focused) focused = &station.window;
            if (focused != &station.window && !reached.insert(focused).second) break;
            ++stops;
            // Keys side by side share one tab stop; the arrow keys reach the others.
            for (QWidget* next = focused; behind.contains(next) || next == focused;
                 next = QApplication::focusWidget()) {
                reached.insert(next);
                focused = next;
                if (!qobject_cast<KeyButton*>(next)) break;
                QTest::keyClick(next, Qt::Key_Right);
                if (QApplication::focusWidget() == next) break;
            }
            focused->setFocus();
            QTest::keyClick(focused, Qt::Key_Tab);
        }
        for (QWidget* control : controlsInSight(station)) {
            const bool operable = !qobject_cast<QLabel*>(control) && !qobject_cast<QProgressBar*>(control);
            EXPECT_TRUE(!operable || !control->isEnabled() || reached.contains(control)) << describe(control);
        }
        if (station.display.mainTab.indexOfSelectedItem() == Display::radioPage) {
            EXPECT_LE(stops, 45);
        }
    });
}

TEST(WindowTest, EveryShortcutOfTheHelpPageDoesWhatItSaysOnEveryPage) {
    Station station;
    std::map<std::string, std::string> listed;
    for (const ShortcutText& text : shortcutTexts(station.display))
        listed[text.keys.toStdString()] = text.meaning.toStdString();
    station.controller.enableTextMemoryControls();
    int presses = 0;
    std::vector<std::pair<QKeySequence, std::string>> shortcuts;
    for (Control* control : station.display.controls()) {
        const Outlet& outlet = control->outlet();
        auto* button = dynamic_cast<Button*>(control);
        if (outlet.shortcut.empty() || !button) continue;
        button->action = [&presses](Button&) { ++presses; };
        EXPECT_EQ(listed[std::string(outlet.shortcut)], outlet.label);
        shortcuts.emplace_back(toQString(outlet.shortcut), outlet.label);
    }
    EXPECT_GT(shortcuts.size(), 30U);

    const auto pressAll = [&](QWidget* target) {
        for (const auto& [keys, label] : shortcuts) {
            presses = 0;
            QTest::keySequence(target, keys);
            EXPECT_EQ(presses, 1) << keys.toString().toStdString() << ' ' << label << " in " << describe(target);
        }
    };
    forEachPage(station, [&] { pressAll(&station.window); });
    for (QWidget* control : station.window.findChildren<QWidget*>()) {
        const bool takesKeys = qobject_cast<QLineEdit*>(control) || qobject_cast<QPlainTextEdit*>(control) ||
                               qobject_cast<QComboBox*>(control);
        if (takesKeys) pressAll(control);
    }
}

// "Alt+1 to Alt+3" gives all three.
std::vector<QKeySequence> keysIn(const QString& text) {
    std::vector<QKeySequence> keys;
    for (const QString& part : text.split(", ")) {
        const QStringList ends = part.split(" to ");
        const QString stem = ends.front().chopped(1);
        for (ushort last = ends.front().back().unicode(); last <= ends.back().back().unicode(); ++last)
            keys.emplace_back(stem + QChar(last));
    }
    return keys;
}

TEST(WindowTest, EveryShortcutStandsForOneThingAndIsOnTheHelpPage) {
    Station station;
    forEachPage(station, [] {});
    std::multiset<QKeySequence> made;
    for (const auto* shortcut : station.window.findChildren<QShortcut*>()) made.insert(shortcut->key());
    for (const auto* action : station.window.findChildren<QAction*>())
        for (const QKeySequence& keys : action->shortcuts()) made.insert(keys);
    for (const auto* button : station.window.findChildren<QAbstractButton*>())
        if (!button->shortcut().isEmpty()) made.insert(button->shortcut());
    for (const auto* menu : station.window.menuBar()->actions()) made.insert(QKeySequence::mnemonic(menu->text()));
    std::multiset<QKeySequence> listed;
    for (const ShortcutText& text : shortcutTexts(station.display))
        for (const QKeySequence& keys : keysIn(text.keys)) listed.insert(keys);

    for (const auto& [all, place] : {std::pair{&made, "made"}, {&listed, "listed"}})
        for (const QKeySequence& keys : *all) EXPECT_EQ(all->count(keys), 1U) << keys.toString().toStdString() << place;
    for (const QKeySequence& keys : made) EXPECT_TRUE(listed.contains(keys)) << keys.toString().toStdString();
    for (const Control* control : station.display.controls()) {
        const std::string_view shortcut = control->outlet().shortcut;
        EXPECT_TRUE(shortcut.empty() || made.contains(QKeySequence(toQString(shortcut)))) << shortcut;
    }
}

TEST(WindowTest, ShortcutsOfTheWindowGoWhereTheySay) {
    Station station;
    const auto page = [&] { return station.display.mainTab.indexOfSelectedItem(); };
    for (int index = Display::bandMapPage; index >= 0; --index) {
        QTest::keySequence(&station.window, QKeySequence("Alt+" + QString::number(index + 1)));
        EXPECT_EQ(page(), index);
    }
    QTest::keySequence(&station.window, QKeySequence("F1"));
    EXPECT_EQ(page(), helpPage);
    QTest::keySequence(&station.window, QKeySequence("Ctrl+R"));
    EXPECT_EQ(page(), Display::stationPage);
    EXPECT_TRUE(eventually([&] { return station.find<QLineEdit>("sendTextField")->hasFocus(); }));
    QTest::keySequence(&station.window, QKeySequence("Ctrl+F"));
    EXPECT_EQ(page(), Display::radioPage);
    EXPECT_TRUE(eventually([&] { return station.find<QLineEdit>("freqTextField")->hasFocus(); }));
    station.controller.enableTextMemoryControls();
    QTest::keySequence(&station.window, QKeySequence("Ctrl+T"));
    EXPECT_EQ(page(), Display::keyerPage);
    EXPECT_TRUE(eventually([&] { return station.find<QLineEdit>("textMemoryField")->hasFocus(); }));
    QTest::keySequence(&station.window, QKeySequence("Ctrl+Q"));
    EXPECT_FALSE(station.window.isVisible());
}

TEST(WindowTest, PagesAreMadeWhenTheyAreFirstShownOrAskedFor) {
    Station station;
    EXPECT_NE(station.find("openCloseButton"), nullptr);
    EXPECT_EQ(station.find("m20Button"), nullptr);
    EXPECT_EQ(station.find("tag606"), nullptr);
    station.display.mainTab.requestView(Display::keyerPage);
    EXPECT_TRUE(eventually([&] { return station.find("tag606") != nullptr; }));
    EXPECT_FALSE(station.find("tag606")->isVisible());
    EXPECT_EQ(station.find("m20Button"), nullptr);
    station.display.mainTab.selectItem(Display::radioPage);
    EXPECT_TRUE(eventually([&] { return station.find("m20Button") != nullptr; }));
    QWidget* const made = station.find("m20Button");

    station.display.settingsTab.requestView(2);  // before the settings page is made
    station.display.mainTab.selectItem(Display::settingsPage);
    EXPECT_TRUE(eventually([&] { return station.find("tag2030100") != nullptr; }));
    EXPECT_EQ(station.find("tag2040100"), nullptr);
    station.display.mainTab.selectItem(Display::radioPage);
    EXPECT_TRUE(eventually([&] { return made->isVisible(); }));
    EXPECT_EQ(station.find("m20Button"), made);
}

TEST(WindowTest, TheKeyboardStaysOnPowerOnWhileItIsBusy) {
    Station station(0.02);  // busy for a minute
    station.show(Display::radioPage);
    QAbstractButton& key = *station.find("tag300");
    Button& model = station.display.key(300);
    std::vector<int> pressed;
    for (const int tag : {300, 301}) {
        Button& watched = station.display.key(tag);
        watched.action = [&pressed, action = watched.action](Button& sender) {
            pressed.push_back(sender.tag());
            action(sender);
        };
    }
    const QImage before = key.grab().toImage();
    key.setFocus();
    QTest::keyClick(&key, Qt::Key_Space);
    ASSERT_TRUE(eventually([&] { return key.accessibleName() == "Power on, busy"; }));
    EXPECT_TRUE(key.hasFocus());
    const QPoint face(key.width() / 2, 6);
    EXPECT_NE(key.grab().toImage().pixelColor(face), before.pixelColor(face)) << "grey";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QTest::mouseClick(&key, Qt::LeftButton);
    EXPECT_FALSE(key.isDown());
    QTest::keyClick(&key, Qt::Key_Right);
    EXPECT_EQ(QApplication::focusWidget(), station.find("tag301"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    EXPECT_TRUE(key.hasFocus()) << "it stays in the tab order";
    EXPECT_EQ(pressed, std::vector{300});
    model.setBusy(false);
    ASSERT_TRUE(eventually([&] { return key.accessibleName() == "Power on"; }));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(pressed, (std::vector{300, 300}));
}

TEST(WindowTest, NoHandMovesABusyControl) {
    Station station;
    Display& display = station.display;
    station.show(Display::radioPage);
    auto& modes = *station.find<QComboBox>("modesPopUpButton");
    auto& gain = *station.find<QSlider>("rfGainSlider");
    auto& frequency = *station.find<QLineEdit>("freqTextField");
    const std::initializer_list<std::pair<Control*, QWidget*>> controls{
        {&display.modesPopUpButton, &modes}, {&display.rfGainSlider, &gain}, {&display.freqTextField, &frequency}};
    for (const auto& [model, widget] : controls) {
        const QString name = widget->accessibleName();
        model->setBusy(true);
        ASSERT_TRUE(eventually([&, shown = widget] { return shown->accessibleName() == name + ", busy"; }));
        widget->setFocus();
        for (const auto key : {Qt::Key_Left, Qt::Key_7, Qt::Key_Space, Qt::Key_Down}) QTest::keyClick(widget, key);
        QTest::mouseClick(widget, Qt::LeftButton, {}, {widget->width() / 4, widget->height() / 2});
        EXPECT_TRUE(widget->hasFocus());
        EXPECT_NE(widget->graphicsEffect(), nullptr) << "faded";
        model->setBusy(false);
        ASSERT_TRUE(eventually([&, shown = widget] { return shown->accessibleName() == name; }));
        EXPECT_EQ(widget->graphicsEffect(), nullptr);
    }
    EXPECT_FALSE(modes.view()->isVisible());
    EXPECT_EQ(gain.value(), gain.maximum());
    EXPECT_EQ(frequency.text(), "");
    QTest::keyClicks(&frequency, "7");
    EXPECT_EQ(frequency.text(), "7");
}

// Counts the events of a kind that a widget gets.
class EventCount : public QObject {
public:
    EventCount(QObject* watched, QEvent::Type type) : QObject(watched), type_(type) {
        watched->installEventFilter(this);
    }

    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == type_) ++count;
        return false;
    }

private:
    const QEvent::Type type_;
};

TEST(WindowTest, AThousandChangesInOneTurnAreShownOnce) {
    Station station;
    station.show(Display::radioPage);
    QCoreApplication::processEvents();
    const EventCount paints(station.find("vqFreqAButton"), QEvent::Paint);
    const EventCount refreshes(&station.window, QEvent::MetaCall);
    for (int hertz = 7'000'000; hertz < 7'001'000; ++hertz)
        station.controller.interpretResponses("FA00" + std::to_string(hertz) + ';');
    EXPECT_TRUE(eventually([&] { return paints.count > 0; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(station.find("vqFreqAButton")->text(), "7.000.999");
    EXPECT_EQ(refreshes.count, 1);
    EXPECT_EQ(paints.count, 1);
}

TEST(WindowTest, AnotherThemeIsSeenAtOnceAndEverywhere) {
    Station station;
    station.display.linkMessageField.setStringValue("The cable fell off.");
    auto* message = station.find<QLabel>("linkMessageField");
    ASSERT_TRUE(eventually([&] { return message->isVisible(); }));
    EventCount paints(station.find("vqFreqAButton"), QEvent::Paint);
    for (const auto& [text, kind] : {std::pair{"Light theme", ThemeKind::light},
                                     {"Dark theme", ThemeKind::dark},
                                     {"Light theme", ThemeKind::light}}) {
        paints.count = 0;
        station.action(text).trigger();
        EXPECT_EQ(Theme::currentKind(), kind);
        EXPECT_TRUE(eventually([&] { return paints.count > 0; }));
        EXPECT_EQ(station.window.palette().color(QPalette::Window), Theme::current().window);
        const QImage picture = station.window.grab().toImage();
        EXPECT_EQ(picture.pixelColor(2, picture.height() - 3), Theme::current().window);
        EXPECT_EQ(message->grab().toImage().pixelColor(message->width() - 2, 2), Theme::current().warning) << text;
        // The mark at the end of a menu bar that has no room for its menus.
        const QIcon more = station.window.style()->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton);
        const QImage mark = more.pixmap(QSize(16, 16)).toImage();
        EXPECT_EQ(mark.pixelColor(0, 0).alpha(), 0);
        EXPECT_NEAR(mark.pixelColor(7, 8).lightness(), Theme::current().text.lightness(), 40) << text;
        for (const auto& [name, ground] : {std::pair{"PortPopUpButton", Theme::current().key},
                                           {"sendTextField", Theme::current().key},
                                           {"lineTable", Theme::current().panel}}) {
            auto* widget = station.find<QWidget>(name);
            ASSERT_TRUE(widget) << name;
            const QImage shown = widget->grab().toImage();
            EXPECT_EQ(shown.pixelColor(shown.width() / 2, shown.height() - 4), ground) << name << ", " << text;
        }
    }
}

TEST(WindowTest, AScrollBarGoesByPagesAndFollowsItsHandle) {
    Station station;
    station.show(Display::memoriesPage);
    auto* bar = station.find<QTableView>("memoriesTable")->verticalScrollBar();
    ASSERT_TRUE(eventually([&] { return bar->maximum() > 2 * bar->pageStep(); }));
    const int middle = bar->width() / 2;
    QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(middle, bar->height() - 2));
    EXPECT_EQ(bar->value(), bar->pageStep());
    QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(middle, 1));
    EXPECT_EQ(bar->value(), 0);
    QTest::mousePress(bar, Qt::LeftButton, {}, QPoint(middle, 5));
    QTest::mouseMove(bar, QPoint(middle, bar->height()));
    QTest::mouseRelease(bar, Qt::LeftButton, {}, QPoint(middle, bar->height()));
    EXPECT_EQ(bar->value(), bar->maximum());
}

TEST(WindowTest, EveryPageFitsIntoTwelveHundredAndEightyByEightHundred) {
    Station station;
    station.window.resize(1280, 800);
    EXPECT_LE(station.window.minimumSizeHint().width(), 1280);
    EXPECT_LE(station.window.minimumSizeHint().height(), 800);
    station.display.vqMemAButton.setTitle("  M-12 40M FT8 QRP");
    station.controller.interpretResponses("FA021200000;FB014074000;FA028100000;");
    forEachPage(station, [&] {
        for (const auto* area : station.window.findChildren<QScrollArea*>()) {
            if (!area->isVisibleTo(&station.window) || !area->widget()) continue;
            EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << describe(area->widget());
        }
        for (const QWidget* control : controlsInSight(station)) {
            const auto* key = qobject_cast<const QAbstractButton*>(control);
            if (key) {
                EXPECT_LE(QFontMetrics(key->font()).horizontalAdvance(key->text()), key->width()) << describe(key);
            }
            EXPECT_GE(control->height(), std::min(control->minimumSizeHint().height(), 20)) << describe(control);
        }
    });
}

TEST(WindowTest, InASmallWindowPagesScrollAndNothingReachesBeyondItsPanel) {
    Station station;
    for (const QSize size : {QSize(1276, 768), QSize(1024, 700)}) {
        station.window.resize(size);
        forEachPage(station, [&] {
            station.window.grab();  // lays out
            for (const QWidget* control : controlsInSight(station)) {
                const QWidget* panel = control->parentWidget();
                EXPECT_LE(control->geometry().bottom(), panel->rect().bottom()) << describe(control);
            }
        });
    }
}

}  // namespace
}  // namespace corvane
