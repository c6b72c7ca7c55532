// What a screen reader hears: announcements, where the keyboard is, and what the controls are called.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QTableView>

#include "qt/window/announcer.h"
#include "qt/window/panel.h"
#include "station.h"

namespace corvane {
namespace {

// Hears the announcements, and where the keyboard goes.
struct Listener : Station {
    Listener() {
        connect(find<Announcer>("announcements"), &Announcer::announced,
                [this](const QString& text) { heard += text; });
        connect(qApp, &QApplication::focusChanged, [this](const QWidget*, const QWidget* now) {
            if (now) focused += now->objectName();
        });
    }
    ~Listener() {
        for (const auto& connection : connections_) QObject::disconnect(connection);
    }
    void press(const char* keys) {
        QTest::keySequence(QApplication::focusWidget() ? QApplication::focusWidget() : &window, QKeySequence(keys));
    }
    std::string focus() {
        const QWidget* widget = QApplication::focusWidget();
        return widget ? widget->objectName().toStdString() : "nothing";
    }
    bool hears(const QString& text) {
        const auto has = [&](const QString& each) { return each.contains(text); };
        return eventually([&] { return std::ranges::any_of(heard, has); });
    }
    QAccessibleInterface& interface(const char* name) {
        return *QAccessible::queryAccessibleInterface(find<QWidget>(name));
    }

    QStringList heard, focused;

private:
    template <class... Arguments>
    void connect(Arguments... arguments) {
        connections_.push_back(QObject::connect(arguments...));
    }

    std::vector<QMetaObject::Connection> connections_;
};

#define EXPECT_HEARD(text) EXPECT_TRUE(station.hears(text)) << "not in: " << station.heard.join('|').toStdString()

TEST(ScreenReaderTest, AnnouncementsSayWhatHappened) {
    Listener station;
    station.synchronise();
    EXPECT_HEARD(QString::fromStdString(station.radio.path()) + ": connected");
    struct Step {
        std::function<void()> act;
        QString heard;
    };
    Display& display = station.display;
    const std::vector<Step> steps{
        {[&] { station.press("Ctrl+4"); }, "40 meters, 7.074.000 MHz, DATA-U"},
        {[&] { station.press("Ctrl+Up"); }, "7.074.250 MHz, DATA-U"},
        {[&] { station.press("F3"); }, "VFO B, 7.074.000 MHz, DATA-U"},
        {[&] { station.press("F2"); }, "VFO A, 7.074.250 MHz, DATA-U"},
        {[&] { display.sMeter.setIntegerValue(7), station.press("Ctrl+I"); },
         "VFO A, 7.074.250 MHz, DATA-U, S7, Technician CW"},
        {[&] { display.memPopUpButton.choose(1); }, "7.200.000 MHz, LSB, memory M-02"},
        {[&] { display.textMemoryNoticeField.setStringValue("No accents"); }, "No accents"},
        {[&] { display.memoriesTable.drop("2", 5); }, "Now channel 5"},
        {[&] { station.radio.unplug(); }, "Not connected"},
    };
    for (const Step& step : steps) {
        station.heard.clear();
        step.act();
        EXPECT_HEARD(step.heard);
    }
}

TEST(ScreenReaderTest, WhatTheVoiceGuideSpeaksIsNotSaidTwice) {
    Listener station;
    station.synchronise();
    station.display.menuItemPreferencesVoice.performClick();
    station.heard.clear();
    for (const char* keys : {"F2", "Ctrl+I", "Ctrl+4"}) station.press(keys);
    EXPECT_HEARD("7.074.000 MHz, DATA-U");
    EXPECT_EQ(station.heard.size(), 1) << station.heard.join('|').toStdString();
}

TEST(ScreenReaderTest, AFilterSaysHowManyMatch) {
    Listener station;
    station.show(Display::settingsPage);
    QTest::keyClicks(station.find<QLineEdit>("menuSearch"), "ssb agc");
    EXPECT_HEARD("3 items match");
    station.show(Display::listsPage);
    auto* filter = station.find<QLineEdit>("potaTableFilter");
    QTest::keyClicks(filter, "zz");
    EXPECT_HEARD("0 of 0 match");
    EXPECT_EQ(station.find("potaTableFilterClear")->accessibleName(), "POTA spots, filter, clear");
}

TEST(ScreenReaderTest, TheKeyboardGoesWhereItIsOfUseAndNowhereElseOnTheWay) {
    Listener station;
    station.synchronise();
    EXPECT_TRUE(eventually([&] { return station.focus() == "m160Button"; })) << "the page that came by itself";
    station.press("Alt+1");
    station.focused.clear();
    for (const char* keys : {"Alt+2", "Alt+1", "Alt+2"}) station.press(keys);
    EXPECT_EQ(station.focused, QStringList({"m160Button", "openCloseButton", "m160Button"}));
    station.press("Ctrl+F");
    QTest::keyClicks(QApplication::focusWidget(), "7.1");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(eventually([&] { return station.focus() == "vqFreqAButton"; })) << station.focus();

    station.press("Ctrl+T");  // in a mode without texts
    EXPECT_HEARD("Text to send, not available now");
    station.press("Alt+4");
    auto& memories = *station.find<QTableView>("memoriesTable");
    memories.setFocus();
    EXPECT_EQ(memories.currentIndex(), memories.model()->index(0, 1)) << "the channel, not the handle";
    memories.setCurrentIndex(memories.model()->index(4, 4));
    memories.edit(memories.currentIndex());
    QTest::keySequence(memories.findChild<QLineEdit*>(), QKeySequence("F1"));
    EXPECT_TRUE(eventually([&] { return !memories.isVisible(); }));
    EXPECT_FALSE(memories.currentIndex().isValid()) << "no cell has the keyboard";
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "F1, This page");
    station.press("Alt+4");
    EXPECT_EQ(memories.currentIndex(), memories.model()->index(4, 4)) << "where it was";
}

TEST(ScreenReaderTest, APageIsReachedFromAnOpenPopUp) {
    Listener station;
    station.press("Alt+M");
    EXPECT_EQ(station.focus(), "modesPopUpButton");
    auto& modes = *station.find<QComboBox>("modesPopUpButton");
    QTest::keyClick(&modes, Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(eventually([&] { return QApplication::activePopupWidget() != nullptr; }));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_6, Qt::AltModifier);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(station.display.mainTab.indexOfSelectedItem(), Display::settingsPage);
    EXPECT_EQ(station.focus(), "menuSearch");
}

TEST(ScreenReaderTest, F6GoesFromPanelToPanel) {
    Listener station;
    station.press("Alt+2");
    QStringList panels;
    const auto panel = [] {
        for (QWidget* widget = QApplication::focusWidget(); widget; widget = widget->parentWidget())
            if (qobject_cast<Panel*>(widget)) return widget->accessibleName();
        return QString("-");
    };
    for (int press = 0; press < 9; ++press, station.press("F6")) panels += panel();
    EXPECT_EQ(panels, QStringList({"Bands, meters", "Mode", "Tuning", "Functions", "Receiver", "Transmitter and knobs",
                                   "Spectrum scope", "-", "-"}));
    station.press("Shift+F6");
    station.press("Shift+F6");
    station.press("Shift+F6");
    EXPECT_EQ(panel(), "Spectrum scope");
}

TEST(ScreenReaderTest, ControlsSayWhatTheyAreAndWhatStateTheyAreIn) {
    Listener station;
    station.synchronise();
    for (const int page : {Display::keyerPage, Display::radioPage}) station.show(page);
    station.display.sMeter.setIntegerValue(10);
    station.display.memoriesTable.drop("2", 5);
    struct Row {
        const char* object;
        QAccessible::Role role;
        const char* name;
        bool checkable;
    };
    const auto role = [](QAccessible::Role each) { return static_cast<int>(each); };
    for (const Row& row : {
             Row{"openCloseButton", QAccessible::Button, "Connected, Connect or disconnect", false},
             Row{"m20Button", QAccessible::RadioButton, "20 meters", true},
             Row{"tag201", QAccessible::Button, "Mode USB", false},
             Row{"bkinButton", QAccessible::CheckBox, "Break-in", true},
             Row{"cwMemory1Button", QAccessible::StaticText, "CW memory 1", false},
             Row{"sMeter", QAccessible::StaticText, "S-meter, above S9", false},
         }) {
        QAccessibleInterface& shown = station.interface(row.object);
        EXPECT_TRUE(eventually([&] { return shown.text(QAccessible::Name).startsWith(row.name); }))
            << shown.text(QAccessible::Name).toStdString();
        EXPECT_EQ(role(shown.role()), role(row.role)) << row.object;
        EXPECT_EQ(shown.state().checkable, row.checkable) << row.object;
        const bool presses = shown.actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction());
        EXPECT_EQ(presses, row.role != QAccessible::StaticText) << row.object;
        EXPECT_TRUE(shown.state().focusable) << row.object;
    }
    station.interface("m20Button").actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(station.interface("m20Button").state().checked ||
                eventually([&] { return station.interface("m20Button").state().checked; }));
    // Of the channel key the tip follows the title, also when that goes.
    auto* channel = station.find("vqMemAButton");
    for (const char* title : {"  M-07", ""}) {
        station.display.vqMemAButton.setTitle(title);
        EXPECT_TRUE(eventually([&] { return channel->toolTip().contains("M-07") == (*title != '\0'); })) << title;
    }
    for (const auto* action : station.window.findChildren<QAction*>()) EXPECT_FALSE(action->text().contains('\t'));
}

}  // namespace
}  // namespace corvane
