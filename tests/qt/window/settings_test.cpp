// The transceiver's setup menu and the kept settings in the real window, on a real serial line.
#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTabWidget>

#include "station.h"

namespace corvane {
namespace {

struct MenuStation : Station {
    QComboBox* popUp(int tag) { return find<QComboBox>(("tag" + std::to_string(tag)).c_str()); }
    // The transceiver's value of a setup menu item.
    std::string held(const char* item) { return radio.transceiver.state().menu.value(item).value_or("none"); }
};

TEST(SettingsTest, TheMenuIsReadSearchedAndSet) {
    MenuStation station;
    station.synchronise();
    station.show(Display::settingsPage);
    station.click("tag2010100");
    auto* read = station.find<QLabel>("radioMenuReadField");
    ASSERT_TRUE(eventually([&] { return read->text() == "93 items read, 11 not shown"; }))
        << read->text().toStdString();
    EXPECT_EQ(station.popUp(2010104)->currentText(), QString::fromStdString(station.held("010104")));

    auto* search = station.find<QLineEdit>("menuSearch");
    auto* groups = station.find<QTabWidget>("settingsTab");
    QTest::keyClicks(search, "Contest");
    EXPECT_EQ(groups->currentIndex(), 1);
    EXPECT_EQ(groups->tabText(0), "Radio (0)");
    EXPECT_EQ(groups->tabText(1), "CW (1)");
    const auto shown = groups->currentWidget()->findChildren<QComboBox*>();
    EXPECT_EQ(std::count_if(shown.begin(), shown.end(), [](QComboBox* view) { return view->isVisible(); }), 1);

    // One of ten thousand entries, typed.
    QComboBox* contest = station.popUp(2020205);
    ASSERT_EQ(contest->count(), 9999);
    contest->setFocus();
    QTest::keyClick(contest, Qt::Key_Space);
    ASSERT_TRUE(contest->view()->isVisible());
    QTest::keyClicks(contest->view(), "9876");
    QTest::keyClick(contest->view(), Qt::Key_Return);
    EXPECT_TRUE(eventually([&] { return station.held("020205") == "9876"; })) << station.held("020205");

    search->clear();
    EXPECT_EQ(groups->tabText(1), "CW");
    QTest::keyClicks(search, "no such item");
    EXPECT_EQ(groups->tabText(1), "CW (0)");
}

TEST(SettingsTest, TheCallSignOfTheMenuIsTypedOnEitherPage) {
    MenuStation station;
    station.synchronise();
    station.show(Display::settingsPage);
    station.find<QTabWidget>("settingsTab")->setCurrentIndex(3);
    auto* call = station.find<QLineEdit>("menuCallTextField");
    ASSERT_NE(call, nullptr);
    EXPECT_EQ(call->text(), "N0CALL");
    call->selectAll();
    QTest::keyClicks(call, "n1abc");
    QTest::keyClick(call, Qt::Key_Return);
    EXPECT_TRUE(eventually([&] { return station.held("040101") == "N1ABC       "; }));
    EXPECT_EQ(station.find<QLineEdit>("callTextField")->text(), "N1ABC");
}

TEST(SettingsTest, SettingsSurviveARestart) {
    MenuStation station;
    station.synchronise();
    station.display.menuItemPreferencesIPO.performClick();
    station.display.autoMemSquelchSlider.drag(9);
    station.radio.operate([](auto& radio) { radio.receive("EX040101N2ABC       ;", {}); });
    station.controller.sendCommand("EX040101;");
    ASSERT_TRUE(eventually([&] { return station.controller.setupMenu.vqCall() == "N2ABC"; }));
    station.display.openCloseButton.performClick();
    QFile kept(station.folder.filePath("corvane.conf"));
    ASSERT_TRUE(eventually([&] { return kept.open(QIODevice::ReadOnly) && kept.readAll().contains("N2ABC"); }));

    QtPlatform owner(station.options("corvane.conf"));
    const Platform platform = owner.platform();
    SerialPortDemoController again{platform, ServiceHosts::from("http://127.0.0.1:1")};
    again.awakeFromNib();
    EXPECT_EQ(again.display.PortPopUpButton.titleOfSelectedItem(),
              station.display.PortPopUpButton.titleOfSelectedItem());
    EXPECT_EQ(again.display.BaudPopUpButton.titleOfSelectedItem(), "38400");
    EXPECT_EQ(again.display.autoMemSquelchSlider.integerValue(), 9);
    EXPECT_TRUE(again.display.menuItemPreferencesIPO.checked());
    EXPECT_FALSE(again.display.menuItemPreferencesVoice.checked());
    EXPECT_EQ(again.userDefaults.text("call"), "N2ABC");
}

TEST(SettingsTest, AClubsServerIsChosenAndKept) {
    Station station;
    SerialPortDemoController first{station.platform, {}};
    MainWindow window{first};
    const auto answer = [&](const char* text) {
        auto* dialog = window.findChild<QInputDialog*>("directoryServer");
        dialog->setTextValue(text);
        dialog->accept();
        runEventLoop(std::chrono::milliseconds(1));
    };
    window.findChild<QAction*>("chooseDirectoryServer")->trigger();
    answer("club.example");
    EXPECT_TRUE(window.findChild<QInputDialog*>("directoryServer")->labelText().startsWith("club.example is no"));
    answer(" http://127.0.0.1:1/ ");
    EXPECT_EQ(window.findChild<QInputDialog*>("directoryServer"), nullptr);
    const SerialPortDemoController again{station.platform, {}};
    EXPECT_EQ(again.hosts.helpPage(), "http://127.0.0.1:1/corvane/");
    SerialPortDemoController given{station.platform, ServiceHosts::from("", "http://127.0.0.1:2")};
    EXPECT_EQ(given.hosts.directory, "http://127.0.0.1:2");
    EXPECT_FALSE(MainWindow(given).findChild<QAction*>("chooseDirectoryServer")->isEnabled());
}

TEST(SettingsTest, AFileThatCannotBeReadIsToldInTheWindow) {
    Station station;
    QFile bad(station.folder.filePath("other.conf"));
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly));
    bad.write("defaultPort");
    bad.close();
    QtPlatform owner(station.options("other.conf"));
    const Platform platform = owner.platform();
    SerialPortDemoController controller{platform, ServiceHosts::from("http://127.0.0.1:1")};
    MainWindow window{controller};
    window.show();
    controller.awakeFromNib();
    EXPECT_TRUE(eventually(
        [&] { return window.findChild<QLabel*>("linkMessageField")->text().contains("kept as other.conf.bad"); }));
}

}  // namespace
}  // namespace corvane
