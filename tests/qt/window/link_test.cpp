// The program and a transceiver on a real serial line, end to end: what is written when, and what the window shows.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <array>
#include <map>
#include <random>
#include <utility>

#include "heartbeat.h"
#include "station.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;

TEST(LinkTest, ASilentTransceiverGetsThreeTextsAtTheirTimesAndNothingElse) {
    Station station;
    station.radio.operate([](auto& radio) { radio.setFaults({.silent = true}); });
    // The marks use the session's own clock, so that a slow machine delays both equally.
    constexpr std::array marks{4500ms, 6000ms, 7500ms, 8700ms, 13000ms, 25000ms};
    std::vector<std::string> received;
    for (const auto mark : marks)
        station.platform.scheduler.after(mark, [&] { received.push_back(station.radio.takeReceived()); });
    station.open();
    ASSERT_TRUE(eventually([&] { return received.size() == marks.size(); }, 20s));
    EXPECT_EQ(received, (std::vector<std::string>{
                            "", "MR001;", "VS1;MC002;MC;MW002;VM;VS0;MC001;MC;MW001;VM;",
                            "PS;AI1;AI;AG0;VS1;VS0;IF;OI;VS;SV;MD0;NB0;NR0;PC;FA;FB;VS0;BC0;BI;PA0;BP00;CO00;GT0;RA0;"
                            "RF0;SF0;SF1;SS00;SS01;SS02;SS03;SS04;SS05;SS06;MS;EX040101;SV;",
                            "", ""}));
    EXPECT_TRUE(station.find<QLabel>("linkStatusField")->text().endsWith("waiting for the transceiver"));
}

TEST(LinkTest, TurningTheKnobMovesTheWidgets) {
    Station station;
    station.synchronise();
    const auto text = [&](const char* button) { return station.find(button)->text().toStdString(); };
    using Shown = std::tuple<std::string, bool, std::string, std::string>;  // title, band, operator class, entry
    for (const auto& [hertz, bandKey, shown] :
         {std::tuple{7'005'010, "m40Button", Shown("7.005.010", true, "Extra CW", "7.005")},
          {1'100'000, "mmwButton", Shown("1.100.000", true, "Out of Band", "1.100")}}) {
        station.radio.operate([turned = hertz](auto& radio) { ASSERT_TRUE(radio.tune(turned)); });
        EXPECT_TRUE(eventually([&, title = std::get<0>(shown)] { return text("vqFreqAButton") == title; }));
        EXPECT_EQ(shown, Shown(text("vqFreqAButton"), station.find(bandKey)->isChecked(), text("licenseClassButton"),
                               station.find<QLineEdit>("freqTextField")->text().toStdString()));
        EXPECT_EQ(station.find("vqFreqAButton")->accessibleName().toStdString(),
                  "VFO A, " + std::get<0>(shown) + " MHz, active");
    }
}

TEST(LinkTest, KeysOfTheWindowOperateTheTransceiver) {
    Station station;
    station.synchronise();
    const auto becomes = [&](const char* command, const std::string& answer) {
        return eventually([&] { return station.radio.transceiver.ask(command) == answer; });
    };
    station.radio.operate([](auto& radio) { radio.operate("AG0080;BI0;FA007074000;"); });
    ASSERT_TRUE(eventually([&] { return station.find("vqFreqAButton")->text() == "7.074.000"; }));

    station.click("m20Button");
    EXPECT_TRUE(eventually([&] { return station.find("vqFreqAButton")->text().startsWith("14."); }));
    EXPECT_EQ(station.radio.transceiver.state().activeTuning().frequency / 1'000'000, 14);
    EXPECT_TRUE(station.find("m20Button")->isChecked());
    EXPECT_FALSE(station.find("m40Button")->isChecked());

    station.click("muteButton");
    EXPECT_TRUE(becomes("AG0;", "AG0000;"));
    EXPECT_TRUE(eventually([&] { return station.find("muteButton")->isChecked(); }));

    // The mute key has switched break-in on, as every key does; the transceiver reports it.
    EXPECT_TRUE(eventually([&] { return station.find("bkinButton")->isChecked(); }));
    station.click("bkinButton");
    EXPECT_TRUE(becomes("BI;", "BI0;"));
    EXPECT_TRUE(eventually([&] { return !station.find("bkinButton")->isChecked(); }));
}

TEST(LinkTest, PullingThePlugIsSaidAndShown) {
    Station station;
    station.synchronise();
    const std::string path = station.radio.path();
    auto* message = station.find<QLabel>("linkMessageField");
    EXPECT_FALSE(message->isVisible());
    station.radio.unplug();
    ASSERT_TRUE(eventually([&] { return message->isVisible(); }));
    EXPECT_EQ(message->text().toStdString(),
              path + " was unplugged. Plug it in again, choose it in the list, then press Connect.");
    EXPECT_EQ(message->accessibleName(), "Message, " + message->text());
    EXPECT_EQ(station.find<QLabel>("linkStatusField")->text(), "Not connected");
    EXPECT_EQ(station.find("openCloseButton")->text(), "Connect");
    EXPECT_FALSE(station.display.readMemoriesButton.enabled());
    station.click("m20Button");  // has no effect
    EXPECT_EQ(station.controller.link.serialPort(), nullptr);

    const auto isOpen = [&] { return station.controller.link.isOpen(); };
    station.action(QStringLiteral("Open a lost port again")).trigger();
    station.radio.plugIn();
    ASSERT_TRUE(eventually([&] { return station.controller.link.serialPort() != nullptr; }));
    station.display.openCloseButton.performClick();
    ASSERT_TRUE(isOpen());
    station.radio.unplug();
    ASSERT_TRUE(eventually([&] { return message->text().contains("It is opened again when it returns."); }));
    EXPECT_FALSE(isOpen());
    station.radio.plugIn();
    EXPECT_TRUE(eventually(isOpen));
}

// Name and contents of every key, pop-up and field in the window.
std::map<std::string, std::string> snapshot(Station& station) {
    std::map<std::string, std::string> shown;
    for (auto* key : station.window.findChildren<QAbstractButton*>())
        shown[key->objectName().toStdString()] = key->text().toStdString() + (key->isChecked() ? " lit" : "");
    for (auto* popUp : station.window.findChildren<QComboBox*>())
        shown[popUp->objectName().toStdString()] = popUp->currentText().toStdString();
    for (auto* field : station.window.findChildren<QLineEdit*>())
        shown[field->objectName().toStdString()] = field->text().toStdString();
    shown.erase("PortPopUpButton");  // the name of the line
    return shown;
}

TEST(LinkTest, AnswersCutInTwoAreStillWholeResponses) {
    Station whole;
    whole.synchronise();
    const auto expected = snapshot(whole);
    Station cut;
    cut.radio.operate([](auto& radio) { radio.setFaults({.cutAnswers = true}); });
    cut.synchronise();
    EXPECT_TRUE(eventually([&] { return snapshot(cut) == expected; }));
    EXPECT_EQ(snapshot(cut), expected);
    for (int hertz = 14'000'000; hertz < 14'001'000; hertz += 50)
        cut.radio.operate([&](auto& radio) { radio.tune(hertz); });
    EXPECT_TRUE(eventually([&] { return cut.find("vqFreqAButton")->text() == "14.000.950"; }));
}

#ifdef __SANITIZE_ADDRESS__
constexpr bool freedMemoryStays = true;  // sanitizers keep it, to find a late use
#else
constexpr bool freedMemoryStays = false;
#endif

// Resident memory in bytes.
long residentMemory() {
    QFile statistics("/proc/self/statm");
    if (!statistics.open(QIODevice::ReadOnly)) return 0;
    return statistics.readAll().split(' ').value(1).toLong() * ::sysconf(_SC_PAGESIZE);
}

TEST(LinkTest, MegabytesOfGarbageNeitherFillTheMemoryNorStopTheProgram) {
    constexpr std::size_t megabyte = 1 << 20;
    Station station;
    station.synchronise();
    std::minstd_rand random(11);
    std::string garbage(1024, ' ');
    const auto feed = [&](std::size_t amount, unsigned kinds) {
        std::size_t written = 0;
        QTimer feeder;
        QObject::connect(&feeder, &QTimer::timeout, &feeder, [&] {
            for (char& byte : garbage) byte = static_cast<char>(random() >> 8 & kinds);
            const auto count = ::write(station.radio.terminal->descriptor(), garbage.data(), garbage.size());
            if (count > 0) written += static_cast<std::size_t>(count);
        });
        feeder.start(0ms);
        return eventually([&] { return written >= amount; }, 60s);
    };
    ASSERT_TRUE(feed(megabyte, 0xff));
    const long before = residentMemory();
    Heartbeat heartbeat;
    ASSERT_TRUE(feed(4 * megabyte, 0xff));  // with a ";" now and then
    ASSERT_TRUE(feed(8 * megabyte, 0x1f));  // without one
    EXPECT_LT(heartbeat.latest(), 490ms);
    EXPECT_TRUE(freedMemoryStays || residentMemory() - before < static_cast<long>(4 * megabyte));
    station.radio.operate([](auto& radio) { radio.sendRaw(";FA007123450;"); });
    EXPECT_TRUE(eventually([&] { return station.find("vqFreqAButton")->text() == "7.123.450"; }));
}

}  // namespace
}  // namespace corvane
