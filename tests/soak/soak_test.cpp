// A day of operation in sped-up time, with every fault of the line: after each quarter of an hour the faults end, the
// operator rests, and the program must show the transceiver as it is, with nothing left over.
#include <gmock/gmock.h>
#include <malloc.h>

#include <cstdlib>
#include <iostream>

#include "interpret/band_table.h"
#include "soak_station.h"
#include "wire/operating_modes.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;
using simulator::Faults;
using simulator::Side;

constexpr int quarters = 96;  // of an hour
constexpr int swapAndShowB = 276;
constexpr int refreshPota = 811;
constexpr int clearLog = 606;
constexpr int clearAutoMemories = 815;
constexpr int warmUp = quarters / 10;
constexpr std::size_t mostGrowth = 256 * 1024;  // bytes in use between the end of the warm-up and the end of the day

const std::array<HttpResponse, 5> lists{
    HttpResponse{R"([{"activator":"N0CALL","frequency":"7185.5","mode":"SSB","comments":"","name":"Park","spotTime":)"
                 R"("2026-11-23T00:00:00","locationDesc":"US-ME","reference":"US-0001"}])",
                 {}},
    {"<NetName>Net</NetName><Frequency>3.940</Frequency><UTC>17:00</UTC><Mode>LSB</Mode><NetID>7</NetID>\n", {}},
    {"[{\"activator\":", {}},
    {"\xff<html>", "the server answered 500"},
    {"", "no network"}};

// The same day each time, unless another is asked for: a number, or "random".
unsigned seedOfDay() {
    const char* given = std::getenv("CORVANE_SOAK_SEED");
    if (!given) return 1;
    return std::string_view(given) == "random" ? std::random_device{}()
                                               : static_cast<unsigned>(std::strtoul(given, nullptr, 10));
}

class Day : public SoakStation {
public:
    explicit Day(unsigned seed) : SoakStation(seed) {
        for (MenuItem* item : {&display.shareSwitch, &display.shareTransmitSwitch, &display.shareStoreSwitch,
                               &display.virtualPortSwitch, &display.menuItemPreferencesReopen})
            item->performClick();
        pass(20s);
        forgetRecords();
    }
    ~Day() {
        for (FakeProgram& program : programs) program.leave();
    }

    void operate() {
        static constexpr std::array acts{
            &Day::pressKey,     &Day::pressKey,      &Day::pressKey,     &Day::choose,       &Day::choose,
            &Day::choose,       &Day::slide,         &Day::chooseInMenu, &Day::typeTuning,   &Day::typeText,
            &Day::turnPanel,    &Day::turnPanel,     &Day::turnPanel,    &Day::readMemories, &Day::editMemory,
            &Day::moveMemory,   &Day::writeMemories, &Day::readMenu,     &Day::refresh,      &Day::useProgram,
            &Day::useProgram,   &Day::usePort,       &Day::replug,       &Day::power,        &Day::reopen,
            &Day::switchFaults, &Day::keepAuto,
        };
        const int act = dice(0, static_cast<int>(acts.size()) - 1);
        note("act ", std::to_string(act));
        (this->*acts[static_cast<std::size_t>(act)])();
        // Nobody leaves it unplugged or off for long.
        if (transceiver.faults().unplugged && chance(15)) replug();
        if (!transceiver.state().powered && chance(15)) power();
        if (!port->isOpen() && !waits && chance(15)) reopen();
        if (chance(10)) transceiver.setFaults({.unplugged = transceiver.faults().unplugged});
        answerLists();
        pass(Milliseconds(chance(80) ? dice(0, 3000) : dice(0, 60'000)));
    }

    // The faults end, the programs leave, and what only the operator can put right he puts right.
    void rest() {
        transceiver.setFaults({.unplugged = transceiver.faults().unplugged});
        if (transceiver.faults().unplugged) plug();
        port->openFailure.reset();
        transceiver.setPowered(true);
        for (FakeProgram& program : programs) program.leave();
        if (around.terminal.connected) around.terminal.leave();
        pass(20s);
        checkNothingIsBusy();
        EXPECT_TRUE(port->isOpen() || !waits) << "a lost port is opened again";
        if (!port->isOpen()) display.openCloseButton.performClick();
        if (std::exchange(deaf, false)) {
            display.openCloseButton.performClick();
            display.openCloseButton.performClick();
        }
        display.key(460).performClick();  // a transceiver that is on again does not tell by itself
        pass(60s);
        // The opening ends with side B's frequency, unless both sides' differ and are reported again as they are
        // swapped.
        if (transceiver.state().tuning(Side::a).frequency == transceiver.state().tuning(Side::b).frequency)
            transceiver.tuneBy(10);
        display.rfGainSlider.drag(dice(0, 255));  // no opening reads it
        display.readMemoriesButton.performClick();
        pass(60s);
        answerLists();
        waits = true;
    }

    void check() {
        checkTuning();
        checkSettings();
        checkChannels();
        checkNothingIsLeft();
    }
    // What the operator collects is his own.
    int bytesInUse() {
        press(clearLog);
        press(clearAutoMemories);
        return static_cast<int>(mallinfo2().uordblks);
    }

private:
    // --- the operator
    void pressKey() {
        const FrontPanelKey& key = oneOf(frontPanelKeys);
        // That one shows side B, whichever is in use.
        if (key.outlet.tag != swapAndShowB && display.key(key.outlet.tag).available()) press(key.outlet.tag);
    }
    void choose() {
        PopUpButton* const popUps[] = {
            &display.modesPopUpButton,     &display.memPopUpButton,          &display.AGCPopUpButton,
            &display.ATTPopUpButton,       &display.ampPopUpButton,          &display.RFILPopUpButton,
            &display.DNRPopupButton,       &display.NBPopupButton,           &display.smeterPopUpButton,
            &display.MPVDButton,           &display.FuncKnobButton,          &display.powerPopUpButton,
            &display.colorPopUpButton,     &display.spectrumModePopUpButton, &display.scopeSpeedPopUpButton,
            &display.scopePeakPopUpButton, &display.scopeLevelPopUpButton,   &display.scopeSpanPopUpButton,
            &display.presetPopUpButton,
        };
        PopUpButton& popUp = *oneOf(popUps);
        popUp.choose(dice(0, popUp.titles().size() - 1));
    }
    void chooseInMenu() {
        std::vector<PopUpButton*> popUps;
        display.menu.forEachPopUp([&](const MenuItemRow&, PopUpButton& popUp) { popUps.push_back(&popUp); });
        PopUpButton& popUp = *oneOf(popUps);
        popUp.choose(dice(0, popUp.titles().size() - 1));
    }
    void slide() {
        Slider& slider = chance(50) ? display.afGainSlider : display.rfGainSlider;
        for (int step = dice(1, 20); step > 0; --step) {
            slider.drag(dice(0, 255));
            pass(Milliseconds(dice(0, 40)));
        }
    }
    void typeTuning() {
        display.freqTextField.edit(std::to_string(dice(0, 80)) + "." + std::to_string(dice(0, 999'999)));
        display.freqTextField.performReturn();
    }
    void typeText() {
        display.callTextField.edit(chance(50) ? "N0CALL" : "\u00e9");
        display.callTextField.performReturn();
        display.callTextField.edit("N0CALL");
        display.textMemoryField.edit(std::string(static_cast<std::size_t>(dice(0, 30)), 'E'));
        if (display.sendTextMemoryButton.available()) display.sendTextMemoryButton.performClick();
    }
    void keepAuto() { display.autoMemoryNowButton.performClick(); }
    void readMemories() {
        if (display.readMemoriesButton.enabled()) display.readMemoriesButton.performClick();
    }
    void editMemory() { display.memoriesTable.editCell(dice(0, 98), dice(1, 3), chance(50) ? "14.1" : "TAG"); }
    void moveMemory() { controller.acceptDrop(display.memoriesTable, std::to_string(dice(0, 98)), dice(0, 98)); }
    void writeMemories() {
        if (display.writeMemoriesButton.enabled()) display.writeMemoriesButton.performClick();
    }
    void readMenu() { press(2'000'000 + 10'000 * dice(1, 4) + 100); }
    void refresh() { press(dice(810, 814)); }
    void reopen() {
        display.openCloseButton.performClick();
        waits = port->isOpen();
        pass(Milliseconds(dice(0, 15'000)));
    }

    // --- the transceiver, its panel and its plug
    void turnPanel() {
        static constexpr std::array commands{"MD05;",    "MD03;", "MD02;", "VS0;",      "VS1;", "AG0099;",
                                             "RG0120;",  "BC01;", "BC00;", "BI1;",      "ST1;", "ST0;",
                                             "BP00001;", "NB01;", "NR01;", "BS05;",     "SV;",  "PC042;",
                                             "RA02;",    "GT02;", "PA00;", "SS0570000;"};
        transceiver.operate(oneOf(commands));
        if (chance(50)) transceiver.tune(dice(100, 60'000) * 1000);  // the side in use, as its knob does
        transceiver.hear(dice(0, 255));
        if (chance(5)) transceiver.spin(Milliseconds(dice(0, 8000)));
    }
    void replug() {
        if (transceiver.faults().unplugged) {
            if (chance(50)) port->openFailure = SerialPortError{SerialPortErrorKind::busy, "Device busy", "", ""};
            plug();
            pass(Milliseconds(dice(0, 8000)));
            port->openFailure.reset();
        } else {
            unplug();
        }
    }
    void power() {
        if (chance(5)) {
            display.APOPopUpButton.choose(1);
            return pass(31min);
        }
        if (chance(50) && transceiver.state().powered) return press(301);
        if (chance(50)) return press(300);
        transceiver.setPowered(!transceiver.state().powered);
    }
    void switchFaults() {
        static constexpr std::array faults{&Faults::silent, &Faults::cutAnswers, &Faults::lateAnswers, &Faults::noise,
                                           &Faults::lossy};
        const auto which = oneOf(faults);
        const bool on = chance(60);
        fault(which, on);
        // What it loses the program cannot know; what comes late or in pieces it must bear.
        deaf = deaf || (on && which != &Faults::cutAnswers && which != &Faults::lateAnswers);
    }

    // --- services and other programs
    void answerLists() {
        for (std::size_t index = 0; index < around.http.pending.size(); ++index)
            if (around.http.pending[index] && chance(70)) {
                HttpClient::Completed& waiting = around.http.pending[index];
                const bool cancelled = std::ranges::count(around.http.cancelled, index) > 0;
                if (const auto rest = std::exchange(waiting, {})(oneOf(lists)); rest && !cancelled) rest();
            }
    }
    void useProgram() {
        static constexpr std::array requests{"f\n",        "F 14074000\n", "m\n",      "M USB 0\n",  "s\n",
                                             "S 1 VFOB\n", "S 0 VFOA\n",   "V VFOB\n", "v\n",        "T 1\n",
                                             "T 0\n",      "t\n",          "l AF\n",   "L AF 0.3\n", "\\dump_state\n",
                                             "U NB 1\n",   "x\n",          "garbage"};
        FakeProgram& program = oneOf(programs);
        if (!program.connected) return around.loopback.connect(program);
        if (chance(15)) return program.leave();
        program.ask(oneOf(requests));
    }
    void usePort() {
        static constexpr std::array commands{"FA;",  "FA014100000;", "IF;",    "MD02;", "AI1;", "AI0;",
                                             "TX1;", "TX0;",         "MR001;", "ZZ;",   "F"};
        if (!around.terminal.connected) return around.terminal.come();
        if (chance(15)) return around.terminal.leave();
        around.terminal.ask(oneOf(commands));
    }

    // --- the checks
    std::string askProgram(const std::string& request) {
        FakeProgram asking;
        around.loopback.connect(asking);
        std::string answer = asking.ask(request);
        pass(2s);
        asking.leave();
        pass(2s);
        return answer + asking.take();
    }
    void checkTuning() {
        const simulator::RadioState& real = transceiver.state();
        const bool onA = real.active == Side::a;
        const simulator::Tuning& tuned = real.activeTuning();
        EXPECT_TRUE(real.powered && real.autoInformation);
        EXPECT_FALSE(real.keyed || real.transmitting) << "nobody is left who has keyed";
        EXPECT_EQ(display.activeVfoField.stringValue(), onA ? "A" : "B");
        EXPECT_EQ(decimalOrZero(onA ? radio.vqFreqA : radio.vqFreqB), tuned.frequency);
        const std::string channel =
            (onA ? display.channelFrequencyAField : display.channelFrequencyBField).stringValue();
        std::string shown = channel.empty() ? (onA ? display.vqFreqAButton : display.vqFreqBButton).title() : channel;
        std::erase(shown, '.');
        EXPECT_EQ(decimalOrZero(shown), tuned.frequency);
        EXPECT_EQ(display.modeField.stringValue(), modeName(tuned.mode).value_or("none"));
        // The band follows reports of frequencies; the transceiver may go to its other side without one. These three
        // keys' bands are not those of the transceiver, which reports nothing when it is there already.
        EXPECT_THAT(markedBands(),
                    testing::ElementsAre(testing::AnyOf(bandKeyTag(real.tuning(Side::a).frequency),
                                                        bandKeyTag(real.tuning(Side::b).frequency), 60, 161, 162)));
        EXPECT_EQ(askProgram("f\n"), std::to_string(tuned.frequency) + '\n');
        EXPECT_EQ(askProgram("s\n").substr(0, 1), transceiver.ask("ST;").substr(2, 1));
    }
    void checkSettings() {
        const auto digits = [this](const char* command, std::size_t from, std::size_t count) {
            return decimalOrZero(transceiver.ask(command).substr(from, count));
        };
        EXPECT_EQ(display.afGainSlider.integerValue(), digits("AG0;", 3, 3));
        EXPECT_EQ(display.rfGainSlider.integerValue(), digits("RG0;", 3, 3));
        EXPECT_EQ(display.powerPopUpButton.indexOfSelectedItem(), digits("PC;", 2, 3) - 5);
        EXPECT_EQ(display.AGCPopUpButton.indexOfSelectedItem(), std::min(digits("GT0;", 3, 1), 4));
        EXPECT_EQ(display.ATTPopUpButton.indexOfSelectedItem(), digits("RA0;", 3, 1));
        EXPECT_EQ(display.ampPopUpButton.indexOfSelectedItem(), digits("PA0;", 3, 1));
        EXPECT_EQ(display.smeterPopUpButton.indexOfSelectedItem(), digits("MS;", 2, 1));
        EXPECT_EQ(display.NBPopupButton.indexOfSelectedItem(), digits("NB0;", 3, 1) * digits("NL0;", 3, 3));
        EXPECT_EQ(display.DNRPopupButton.indexOfSelectedItem(), digits("NR0;", 3, 1) * digits("RL0;", 3, 2));
        EXPECT_EQ(display.scopeSpanPopUpButton.indexOfSelectedItem(), digits("SS05;", 4, 1));
        EXPECT_EQ(display.scopeLevelPopUpButton.titleOfSelectedItem(), transceiver.ask("SS04;").substr(4, 5));
        for (const auto& [key, command] : {std::pair{&display.dnfButton, "BC0;"},
                                           {&display.bkinButton, "BI;"},
                                           {&display.notchButton, "BP00;"},
                                           {&display.contButton, "CO00;"}}) {
            const std::string answer = transceiver.ask(command);
            EXPECT_EQ(key->bezelColor() == Color::blue, answer[answer.size() - 2] == '1') << key->objectName();
        }
    }
    void checkChannels() {
        EXPECT_THAT(display.memoryReadField.stringValue(), testing::StartsWith("Read: "));
        for (int row = 0; row < memoryChannels; ++row) {
            const simulator::MemoryChannel* real = transceiver.state().memories.find(row + 1);
            const MemoryChannel& shown = controller.memories.vqMemArray()[static_cast<std::size_t>(row)];
            EXPECT_EQ(shown.frequency.size() == 9 ? decimalOrZero(shown.frequency) : 0,
                      real ? real->tuning.frequency : 0)
                << "channel " << row + 1;
            const std::string modeAndTag = real ? real->tuning.mode + real->tag : "";
            EXPECT_EQ(real ? shown.mode + std::string(trimmed(shown.tag)) : "", modeAndTag) << "channel " << row + 1;
        }
    }
    void checkNothingIsBusy() {
        for (const Control* control : display.controls()) EXPECT_FALSE(control->busy()) << control->objectName();
        EXPECT_FALSE(display.memoryReadProgress.visible() && !controller.memories.read().stalled);
        for (int page = 0; page < Display::settingsPages; ++page)
            EXPECT_FALSE(display.menu.readProgress(page).visible()) << "settings page " << page;
    }
    void checkNothingIsLeft() {
        EXPECT_TRUE(port->isOpen());
        EXPECT_EQ(display.linkStatusField.stringValue(), "ttyUSB0: connected");
        EXPECT_EQ(display.linkMessageField.stringValue(), "");
        EXPECT_TRUE(display.readMemoriesButton.enabled() && display.writeMemoriesButton.enabled());
        const bool texts = modeGroup(transceiver.state().activeTuning().mode) != nullptr;
        for (const Button* key : display.textMemoryButtons) EXPECT_EQ(key->enabled(), texts) << key->objectName();
        checkNothingIsBusy();
        for (const TextField* notice : {&display.callNoticeField, &display.textMemoryNoticeField,
                                        &display.memoryTextNoticeField, &display.shareKeyedField})
            EXPECT_EQ(notice->stringValue(), "") << notice->objectName();
        press(refreshPota);
        pass(100ms);
        if (const auto rest = around.http.pending.back()(lists[0])) rest();
        pass(3s);
        EXPECT_EQ(display.potaTable.rows(), 1);
        EXPECT_LE(around.scheduler.waiting(), 3U)
            << "the auto memories, the age of the spot, the time on the air, no other";
    }

    std::array<FakeProgram, 3> programs;
    bool deaf = false;  // the line has lost something
    bool waits = true;  // for a lost port: the operator has not closed it himself
};

TEST(Soak, AfterEachQuarterOfADayTheProgramShowsTheTransceiverAndNothingIsLeft) {
    const unsigned seed = seedOfDay();
    std::cout << "CORVANE_SOAK_SEED=" << seed << std::endl;
    Day day(seed);
    int before = 0;
    for (int quarter = 0; quarter < quarters && !testing::Test::HasFailure(); ++quarter) {
        SCOPED_TRACE("quarter " + std::to_string(quarter));
        for (int act = 0; act < 100; ++act) day.operate();
        day.rest();
        day.check();
        if (testing::Test::HasFailure())
            for (const std::string& line : day.journal) std::cout << line;
        day.journal = {};
        day.forgetRecords();
        if (quarter == warmUp) before = day.bytesInUse();
    }
    const int growth = day.bytesInUse() - before;
    std::cout << "memory in use: " << before << " bytes, then " << growth << " more" << std::endl;
    EXPECT_LT(growth, static_cast<int>(mostGrowth));
}

}  // namespace
}  // namespace corvane
