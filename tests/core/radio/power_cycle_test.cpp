// The transceiver is switched off and on again at its panel, while the port stays open.
#include <gmock/gmock.h>

#include <functional>

#include "radio/link_messages.h"
#include "tests/support/radio_bench.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;

struct PowerCycle : testing::Test {
    RadioBench bench;
    Display& display = bench.display;

    void open() {
        bench.advance(13s);
        bench.settle();
        bench.takeWrites();
    }
    void power(bool on) {
        bench.transceiver.setPowered(on);
        bench.settle();
    }
    std::string status() const { return display.linkStatusField.stringValue(); }
};

TEST_F(PowerCycle, TheFirstWordBringsTheDisplayIntoStepAndLeavesTheTransceiverAsItIs) {
    const auto report = [](RadioBench& radio) { radio.transceiver.sendRaw("PS1;"); };
    const auto key = [](RadioBench& radio) { radio.press(460); };
    const auto byHand = [](RadioBench& radio) { radio.controller.writeString("GT0;"); };
    open();
    for (const std::function<void(RadioBench&)>& act : {std::function<void(RadioBench&)>(report), {key}, {byHand}})
        for (const bool onB : {false, true}) {
            bench.transceiver.operate(onB ? "VS1;" : "VS0;");
            bench.settle();
            power(false);
            EXPECT_EQ(status(), "ttyUSB0: the transceiver is switched off");
            EXPECT_EQ(display.linkMessageField.stringValue(), switchedOffMessage);
            EXPECT_TRUE(display.vqFreqAButton.lastKnown());
            power(true);
            bench.transceiver.operate("FA007012340;FB021012340;MD03;AG0099;RG0077;BC01;BI1;PC042;");
            bench.settle();
            bench.takeWrites();
            bench.advance(1h);
            EXPECT_EQ(bench.takeWrites(), Writes{}) << "nothing is asked before anything happens";
            act(bench);
            bench.settle();
            bench.advance(2s);
            bench.settle();
            EXPECT_EQ(status(), "ttyUSB0: connected");
            EXPECT_EQ(display.linkMessageField.stringValue(), "");
            EXPECT_EQ(display.vqFreqAButton.title(), "7.012.340");
            EXPECT_EQ(display.vqFreqBButton.title(), "21.012.340");
            EXPECT_EQ(display.activeVfoField.stringValue(), onB ? "B" : "A");
            EXPECT_NE((onB ? display.vqFreqBButton : display.vqFreqAButton).bezelColor(), Color::none);
            EXPECT_EQ(bench.transceiver.state().active == simulator::Side::b, onB);
            EXPECT_EQ(display.modeField.stringValue(), "CW-U");
            EXPECT_EQ(display.afGainSlider.integerValue(), 99);
            EXPECT_EQ(display.rfGainSlider.integerValue(), 77);
            EXPECT_EQ(display.powerPopUpButton.titleOfSelectedItem(), "42w");
            EXPECT_EQ(display.dnfButton.bezelColor(), Color::blue);
            EXPECT_FALSE(display.vqFreqAButton.lastKnown() || display.modeField.lastKnown());
            bench.transceiver.operate("FA014012340;FB014012340;MD02;");
            bench.settle();
            EXPECT_EQ((onB ? display.vqFreqBButton : display.vqFreqAButton).title(), "14.012.340") << "reports are on";
            bench.transceiver.operate("TX1;");
            bench.settle();
            EXPECT_EQ(display.onAirField.stringValue(), "ON AIR") << "and are known to be";
            bench.transceiver.operate("TX0;");
            bench.settle();
        }
}

TEST_F(PowerCycle, OneQuestionFollowsWhatTheOperatorDoesMeanwhile) {
    open();
    power(false);
    bench.takeWrites();
    bench.press(460);
    bench.advance(1999ms);
    bench.press(460);
    bench.advance(1h);
    EXPECT_EQ(bench.takeWrites(), (Writes{"QI;", "BI1;", "QI;", "BI1;", "PS;"}));
    bench.settle();
    EXPECT_EQ(status(), "ttyUSB0: the transceiver is switched off");
    bench.press(300);
    bench.advance(1h);
    bench.settle();
    EXPECT_EQ(status(), "ttyUSB0: connected");
    EXPECT_FALSE(display.vqFreqAButton.lastKnown());
}

TEST_F(PowerCycle, ATransceiverThatMissedTheSynchronisationGetsItWhenItIsOn) {
    power(false);
    open();
    EXPECT_EQ(status(), "ttyUSB0: the transceiver is switched off");
    power(true);
    bench.transceiver.sendRaw("PS1;");
    bench.settle();
    EXPECT_EQ(bench.takeWrites().front(), bench.controller.link.syncRadioCmd());
    EXPECT_EQ(status(), "ttyUSB0: connected");
}

}  // namespace
}  // namespace corvane
