// The operator's tools in the real window, on a real serial line: what mouse and keys send to the transceiver.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QSlider>
#include <QStyle>
#include <QTableView>
#include <algorithm>

#include "station.h"
#include "wire/cat_command.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;

struct Tools : Station {
    Tools() {
        synchronise();
        settle();
    }
    int tuned() const { return radio.transceiver.state().activeTuning().frequency; }
    bool tunedTo(int hertz) {
        return eventually([&] { return tuned() == hertz; });
    }
    bool memoriesRead() {
        return eventually([this] {
            return controller.memories.read().vqMemRead == "0" && controller.memories.read().vqTagRead == "0";
        });
    }
};

TEST(ToolsTest, ATypedFrequencyStaysWhileTheKnobTurnsAndTunesOnReturn) {
    Tools station;
    station.show(Display::radioPage);
    auto* field = station.find<QLineEdit>("freqTextField");
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "7.0");
    station.radio.operate([](auto& radio) { radio.tune(14'260'000); });
    ASSERT_TRUE(eventually([&] { return station.find("vqFreqAButton")->text() == "14.260.000"; }));
    EXPECT_EQ(field->text(), "7.0");
    QTest::keyClicks(field, "305");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(station.tunedTo(7'030'500));
    EXPECT_TRUE(eventually([&] { return field->text() == "7.030"; }));
    EXPECT_FALSE(field->hasFocus());

    field->setFocus();
    QTest::keyClicks(field, "99");
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(field->text(), "7.030");
    QTest::keyClicks(field, "9.9.9");
    station.click("tuneButton");
    ASSERT_TRUE(eventually([&] { return station.box() != nullptr; }));
    EXPECT_EQ(station.box()->text(), "Frequency must be in MHz and greater than 0.03\n\nExample: 0.860");
    EXPECT_TRUE(station.box()->isModal());
    station.radio.operate([](auto& radio) { radio.tune(7'031'000); });
    EXPECT_TRUE(eventually([&] { return field->text() == "7.031"; })) << "the window keeps updating behind the alert";
    QTest::keyClick(station.box(), Qt::Key_Return);
    EXPECT_TRUE(eventually([&] { return station.box() == nullptr; }));
}

TEST(ToolsTest, WhatIsTypedStaysOnTheWayToItsTuneKeyAndAVfoKeyReplacesIt) {
    Tools station;
    station.show(Display::radioPage);
    auto* field = station.find<QLineEdit>("freqTextField");
    auto* tune = station.find("tuneButton");
    const auto knobTurnsTo = [&](int hertz, const char* shown) {
        station.radio.operate([hertz](auto& radio) { radio.tune(hertz); });
        ASSERT_TRUE(eventually([&] { return station.find("vqFreqAButton")->text() == shown; }));
    };
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "7.03");
    tune->setFocus(Qt::TabFocusReason);
    knobTurnsTo(14'260'000, "14.260.000");
    EXPECT_EQ(field->text(), "7.03");
    QTest::keyClick(tune, Qt::Key_Space);
    EXPECT_TRUE(station.tunedTo(7'030'000));

    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "3.5");
    tune->setFocus(Qt::TabFocusReason);
    station.find("vqFreqAButton")->setFocus(Qt::TabFocusReason);
    knobTurnsTo(14'261'000, "14.261.000");
    EXPECT_EQ(field->text(), "14.261");

    field->setFocus();
    QTest::keyClicks(field, "99");
    station.display.key(500).performClick();
    EXPECT_TRUE(eventually([&] { return field->text() == "14.261"; }));
}

TEST(ToolsTest, AFieldThatIsDisabledHandsTheKeyboardToNoKey) {
    Tools station;
    station.show(Display::keyerPage);
    const auto modeBecomes = [&](char code, bool texts) {
        station.radio.operate([code](auto& radio) { radio.setMode(code); });
        ASSERT_TRUE(eventually([&] { return station.find<QLineEdit>("textMemoryField")->isEnabled() == texts; }));
    };
    modeBecomes('3', true);
    auto* field = station.find<QLineEdit>("textMemoryField");
    field->setFocus();
    QTest::keyClicks(field, "CQ ");
    station.settle();
    modeBecomes('2', false);
    station.settle();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    runEventLoop(50ms);
    EXPECT_TRUE(station.radio.takeReceived().empty());
    modeBecomes('3', true);
    EXPECT_TRUE(field->hasFocus());
    EXPECT_EQ(field->text(), "CQ ");
}

TEST(ToolsTest, KeysOpenAPopUpAndOnlyAChoiceIsSent) {
    Tools station;
    station.show(Display::radioPage);
    station.radio.takeReceived();
    auto* modes = station.find<QComboBox>("modesPopUpButton");
    modes->setFocus();
    QTest::keyClick(modes, Qt::Key_A);
    QTest::keyClick(modes, Qt::Key_Down);
    ASSERT_TRUE(eventually([&] { return modes->view()->isVisible(); }));
    QTest::keyClick(modes->view(), Qt::Key_Down);
    EXPECT_EQ(station.radio.takeReceived(), "");
    QTest::keyClick(modes->view(), Qt::Key_Return);
    EXPECT_TRUE(eventually([&] { return station.radio.transceiver.ask("MD0;") == "MD03;"; }));

    station.action("Phone - 40m").trigger();
    EXPECT_TRUE(station.tunedTo(7'200'000));
}

TEST(ToolsTest, ADraggedSliderSendsFewCommandsAndItsLastValue) {
    Tools station;
    station.show(Display::radioPage);
    auto* slider = station.find<QSlider>("afGainSlider");
    station.radio.takeReceived();
    const int y = slider->height() / 2;
    const auto knob = [&] {
        return QStyle::sliderPositionFromValue(slider->minimum(), slider->maximum(), slider->value(), slider->width());
    };
    QTest::mousePress(slider, Qt::LeftButton, {}, {knob(), y});
    ASSERT_TRUE(slider->isSliderDown());
    for (int x = knob(); x < slider->width(); ++x) QTest::mouseMove(slider, {x, y});
    EXPECT_GT(slider->value(), 200);
    const auto sliderIsSet = [&] {
        return station.radio.transceiver.ask("AG0;") == "AG0" + zeroPadded(slider->value(), 3) + ';';
    };
    ASSERT_TRUE(eventually(sliderIsSet));
    station.radio.operate([](auto& radio) { radio.setAfGain(33); });
    ASSERT_TRUE(eventually([&] { return station.controller.mirror.state().vqAFLevel == "033"; }));
    EXPECT_GT(slider->value(), 200) << "it is held";
    QTest::mouseRelease(slider, Qt::LeftButton, {}, {slider->width() - 1, y});
    EXPECT_TRUE(eventually(sliderIsSet));
    const std::string sent = station.radio.takeReceived();
    EXPECT_LE(std::ranges::count(sent, ';'), 4) << sent;
}

TEST(ToolsTest, AReadShowsHowFarItIsAndFillsTheTable) {
    Tools station;
    ASSERT_TRUE(station.memoriesRead());
    station.show(Display::memoriesPage);
    station.radio.transceiver.setInstantAnswers(false);
    station.click("readMemoriesButton");
    const auto* progress = station.find<QProgressBar>("memoryReadProgress");
    EXPECT_TRUE(eventually([&] { return progress->isVisible() && progress->value() > 20; }));
    EXPECT_LT(progress->value(), 200);
    ASSERT_TRUE(station.memoriesRead());
    const auto* table = station.find<QTableView>("memoriesTable");
    EXPECT_EQ(table->model()->index(4, 2).data().toString(), "14.050000");
    EXPECT_EQ(table->model()->index(4, 3).data(Qt::AccessibleTextRole).toString(), "Mode, CW-U, pop-up menu");
}

// After silence, many error responses, or an unplugged port, the next read works.
TEST(ToolsTest, AnInterruptedReadLeavesTheProgramUsable) {
    Tools station;
    ASSERT_TRUE(station.memoriesRead());
    station.show(Display::memoriesPage);
    const auto readsEverything = [&] {
        station.settle();
        station.display.readMemoriesButton.performClick();
        return station.memoriesRead() && station.controller.memories.vqMemArray()[11].tag == "10M FM CALL ";
    };
    const auto stopAt = [&](int handled) {
        station.display.readMemoriesButton.performClick();
        ASSERT_TRUE(eventually([&] { return station.controller.memories.read().vqMemReadCnt >= handled; }));
    };
    station.radio.operate([](auto& radio) { radio.setFaults({.silent = true}); });
    station.display.readMemoriesButton.performClick();
    EXPECT_TRUE(eventually(
        [&] { return station.display.memoryReadField.stringValue().find("no answer") != std::string::npos; }));
    station.radio.operate([](auto& radio) { radio.setFaults({}); });
    EXPECT_TRUE(readsEverything());

    stopAt(3);
    station.radio.operate([](auto& radio) {
        for (int storm = 0; storm < 500; ++storm) radio.sendRaw("?;");
    });
    EXPECT_TRUE(readsEverything());

    station.radio.transceiver.setInstantAnswers(false);
    stopAt(3);
    station.radio.unplug();
    ASSERT_TRUE(eventually([&] { return station.controller.link.serialPort() == nullptr; }));
    EXPECT_NE(station.display.memoryReadField.stringValue().find("the link is closed"), std::string::npos);
    station.radio.transceiver.setInstantAnswers(true);
    station.radio.plugIn();
    const auto listed = [&] {
        const auto& ports = station.display.PortPopUpButton.entries();
        return static_cast<int>(std::ranges::find(ports, station.radio.path()) - ports.begin());
    };
    ASSERT_TRUE(
        eventually([&] { return listed() < static_cast<int>(station.display.PortPopUpButton.entries().size()); }));
    station.display.PortPopUpButton.choose(listed());
    station.radio.takeReceived();
    station.display.openCloseButton.performClick();
    station.waitForOpening();
    EXPECT_TRUE(readsEverything());
}

TEST(ToolsTest, WritingAsksAndIsTakenBackByEscape) {
    Tools station;
    ASSERT_TRUE(station.memoriesRead());
    station.show(Display::memoriesPage);
    station.radio.takeReceived();
    const std::string before = station.radio.transceiver.ask("MR005;");
    for (const bool agree : {false, true}) {
        station.click("writeMemoriesButton");
        ASSERT_TRUE(eventually([&] { return station.box() && station.box()->isVisible(); }));
        if (agree) {
            for (auto* button : station.box()->buttons())
                if (button->text() == "Write") button->click();
        } else {
            QTest::keyClick(station.box(), Qt::Key_Return);
        }
        ASSERT_TRUE(eventually([&] { return station.box() == nullptr; }));
        station.settle();
        EXPECT_EQ(QDir(station.folder.filePath("data/memory-channels")).entryList(QDir::Files).size(), agree ? 1 : 0);
    }
    EXPECT_EQ(station.radio.transceiver.ask("MR005;"), before);
}

TEST(ToolsTest, ATextOfSixtyCharactersGoesOutInTwoPiecesAndMemoryFiveIsKept) {
    Tools station;
    const std::string held = station.radio.transceiver.ask("EM05;");
    station.radio.operate([](auto& radio) { radio.setMode('6'); });
    ASSERT_TRUE(eventually([&] { return station.display.textMemoryField.enabled(); }));
    station.settle();
    station.show(Display::keyerPage);
    const std::string first = "CQ CQ CQ DE N0CALL N0CALL N0CALL RYRYRYRYRYRYRYRY";
    ASSERT_EQ(first.size(), 49U);
    auto* field = station.find<QLineEdit>("textMemoryField");
    QTest::keyClicks(field, QString::fromStdString(first + "PSE K ABCDE"));
    QTest::keyClick(field, Qt::Key_Return);
    ASSERT_TRUE(eventually([&] { return station.radio.transceiver.received().count("EM") >= 3; }));
    EXPECT_EQ(station.radio.takeReceived(),
              "EM05" + first + "};EN05;EM05PSE K ABCDE};EN05;EM05" + held.substr(4, held.size() - 5) + "};");
    EXPECT_EQ(station.radio.transceiver.ask("EM05;"), held);

    QTest::keyClicks(field, "CQ;");
    auto* notice = station.find<QLabel>("textMemoryNoticeField");
    EXPECT_TRUE(eventually([&] { return notice->isVisible(); }));
    station.click("sendTextMemoryButton");
    EXPECT_EQ(station.radio.takeReceived(), "");
    EXPECT_EQ(field->text(), "CQ;");
}

TEST(ToolsTest, AnAmpersandInATextMakesNoShortcut) {
    Tools station;
    station.radio.operate([](auto& radio) { radio.setMode('3'); });
    station.show(Display::keyerPage);
    station.settle();
    station.radio.operate([](auto& radio) { radio.sendRaw("KM1Q&R;"); });
    auto* key = station.find("textMemory1Button");
    ASSERT_TRUE(eventually([&] { return key->text() == "Q&&R"; }));
    QTest::keyClick(&station.window, Qt::Key_R, Qt::AltModifier);
    station.radio.serve();
    EXPECT_EQ(station.radio.transceiver.received().count("KY"), 0);
    EXPECT_EQ(key->accessibleName(), "Text memory 1, Q&R");
}

// Who looks elsewhere pays nothing for the traffic: the table hears of it only while it is in sight.
TEST(ToolsTest, TheTrafficIsShownWhileItIsInSight) {
    Tools station;
    station.show(Display::stationPage);
    auto* table = station.find<QTableView>("lineTable");
    const auto rows = [table] { return table->model()->rowCount(); };
    const auto cell = [table](int row, int column) { return table->model()->index(row, column).data().toString(); };
    station.click("lineClearButton");
    auto* filter = station.find<QLineEdit>("lineFilterField");
    QTest::keyClicks(filter, "tx");
    station.radio.operate([](auto& radio) { radio.operate("TX1;"); });
    ASSERT_TRUE(eventually([&] { return rows() == 1; }));
    EXPECT_EQ(cell(0, 1) + ' ' + cell(0, 2) + ' ' + cell(0, 3), "received TX1; TX on");
    EXPECT_EQ(station.find<QLabel>("onAirField")->accessibleName(), "Transmitter, on air");
    QTest::keyClicks(filter, " off");
    EXPECT_EQ(rows(), 0);
    EXPECT_TRUE(eventually(
        [&] { return station.find<QLabel>("lineCountField")->accessibleName().startsWith("Traffic, 0 of "); }));
    QTest::keyClick(filter, Qt::Key_Escape);
    EXPECT_EQ(filter->text(), "") << "takes back what was typed";
    QTest::keyClicks(filter, "tx");

    int told = 0;
    for (const auto change : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        QObject::connect(table->model(), change, table, [&told] { ++told; });
    QObject::connect(table->model(), &QAbstractItemModel::modelReset, table, [&told] { ++told; });
    station.show(Display::radioPage);
    told = 0;
    station.radio.operate([](auto& radio) { radio.operate("TX0;"); });
    ASSERT_TRUE(eventually([&] { return station.display.onAirField.stringValue() == "receiving"; }));
    runEventLoop(300ms);
    EXPECT_EQ(told, 0);
    station.show(Display::stationPage);
    EXPECT_EQ(rows(), 2);
}

TEST(ToolsTest, TheTimeOutIsChosenInTheMenu) {
    Station station;
    auto* entries = station.find<QMenu>("onAirTimeOutPopUpButton");
    ASSERT_NE(entries, nullptr);
    const auto checked = [entries] {
        QString titles;
        for (const QAction* entry : entries->actions())
            if (entry->isChecked()) titles += entry->text();
        return titles;
    };
    EXPECT_EQ(checked(), "10 minutes");
    station.action("3 minutes").trigger();
    EXPECT_EQ(checked(), "3 minutes");
    EXPECT_EQ(station.platform.settings.text("onAirTimeOut"), "3");
}

}  // namespace
}  // namespace corvane
