#include <gmock/gmock.h>

#include "tests/support/test_bench.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(FunctionPopUps, AChoiceSendsItsCommandsOneByOne) {
    using D = Display;
    const struct {
        PopUpButton D::*popUp;
        int entry;
        Writes written;
        Writes spoken = {};
    } cases[] = {
        {&D::modesPopUpButton, 2, {"MD03;", "BI1;", "SF1H;"}, {"CW-U"}},
        {&D::modesPopUpButton, 6, {"MD07;", "BI1;", "SF1H;"}, {"CW-L"}},
        {&D::modesPopUpButton, 13, {"MD0E;", "BI1;", "SF1E;"}, {"PSK"}},
        {&D::memPopUpButton, 0, {"SS0670000;", "MC001;", "MW001;", "SS0670000;"}, {"CALLING"}},
        {&D::memPopUpButton, 11, {"SS0670000;", "MC012;", "MW012;", "SS0670000;"}, {" "}},
        {&D::RFILPopUpButton, 2, {"RF04;", "RF0;"}},
        {&D::DNRPopupButton, 12, {"NR01;", "RL012;"}},
        {&D::NBPopupButton, 3, {"NB01;", "NL0003;"}},
        {&D::powerPopUpButton, 45, {"PC050;"}, {"50 watts"}},
    };
    for (const auto& choice : cases) {
        TestBench bench;
        putChannel(bench.controller.memories, 0, {" ", " ", "CALLING"});
        (bench.display.*choice.popUp).choose(choice.entry);
        EXPECT_EQ(bench.takeWrites(), choice.written) << (bench.display.*choice.popUp).objectName();
        EXPECT_EQ(bench.takeSpoken(), choice.spoken);
    }
}

TEST(FunctionPopUps, WhatStandsForNothingRepeatsNoCommand) {
    TestBench bench;
    bench.controller.link.build("KY6;");
    PopUpButton popUp{{"", 0}};
    popUp.setEntries(std::vector<std::string>(20, "x"));
    const auto press = [&](auto action, int entry) {
        popUp.selectItem(entry);
        (bench.controller.*action)(popUp);
    };
    using C = SerialPortDemoController;
    for (const auto action : {&C::goFunctionKnob, &C::goMPVD, &C::goMode, &C::goSpectrumMode, &C::goColor})
        press(action, 19);
    for (const auto action :
         {&C::goFunctionKnob, &C::goMPVD, &C::goMode, &C::goMemory, &C::goSpectrumMode, &C::goColor, &C::goSmeter,
          &C::goAmp, &C::goAGC, &C::goATT, &C::goRFIL, &C::goDNR, &C::goNB, &C::goSuperPopUp, &C::goMacro})
        press(action, PopUpButton::noSelection);
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
    EXPECT_EQ(bench.controller.link.cmd(), "KY6;");
    press(&C::goRFIL, 19);
    bench.controller.goSuperPopUp(bench.display.scopeLevelPopUpButton);
    EXPECT_THAT(bench.takeWrites(), ElementsAre("RF0;", "RF0;", "SS04+00.0;")) << "these have a value for it";
}

TEST(FunctionPopUps, AGainThatWaitsDoesNotUndoAMuteOrATypedCommand) {
    for (const bool mute : {true, false}) {
        TestBench bench;
        bench.outlastOpening();
        bench.display.afGainSlider.drag(100);
        bench.display.afGainSlider.drag(110);
        bench.takeWrites();
        if (mute)
            bench.press(610);
        else
            bench.controller.sendCommand("AG0000;");
        EXPECT_EQ(bench.takeWrites().front(), "AG0000;");
        bench.advance(std::chrono::seconds(1));
        EXPECT_THAT(bench.takeWrites(), IsEmpty());
    }
}

TEST(FunctionPopUps, TheFirstColorAsksForNothingAndIsNotShown) {
    TestBench bench;
    bench.receive("SS0340000;");
    bench.display.colorPopUpButton.choose(0);
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
    EXPECT_EQ(bench.display.colorPopUpButton.titleOfSelectedItem(), "Color 5");
}

TEST(FunctionPopUps, MemoryIpoSwitchesThePreAmplifierOffAsWell) {
    TestBench bench(MapSettingsStore::Values{{"ipo", "1"}});
    bench.display.memPopUpButton.choose(0);
    EXPECT_THAT(bench.takeWrites(), ElementsAre("SS0670000;", "MC001;", "MW001;", "SS0670000;", "PA00;"));
}

TEST(FunctionPopUps, PresetsGoToTheActiveVfoByTheirExactTitle) {
    TestBench bench;
    PopUpButton& presets = bench.display.presetPopUpButton;
    const auto choose = [&](std::string_view title) {
        presets.selectItemWithTitle(title);
        presets.choose(presets.indexOfSelectedItem());
        EXPECT_THAT(bench.takeSpoken(), ElementsAre(title));
        return bench.takeWrites();
    };
    EXPECT_THAT(choose("Phone - 20m"), ElementsAre("MD02;", "SS0570000;", "FB014250000;", "SS06A0000;", "SF1E;"));
    bench.receive("VS0;");
    EXPECT_THAT(choose("CW - 40m"),
                ElementsAre("MD07;", "SS0640000;", "FA007050000;", "SS0560000;", "SS0670000;", "SF1H;", "BI1;"));
    EXPECT_THAT(choose("Medium Wave"), ElementsAre("MD05;", "FA001100000;", "SS0670000;", "SS0590000;", "SF1E;"));
    presets.setEntries({"cw - 10m"});
    EXPECT_THAT(choose("cw - 10m"), IsEmpty());
}

TEST(GainSliders, SendAtMostOneCommandInFiftyMillisecondsAndTheLastOne) {
    TestBench bench;
    bench.outlastOpening();
    Slider& slider = bench.display.afGainSlider;
    slider.drag(5);
    EXPECT_THAT(bench.takeWrites(), ElementsAre("AG0005;"));
    for (int value = 6; value <= 100; ++value) {
        slider.drag(value);
        bench.advance(1ms);
    }
    slider.drag(255);
    EXPECT_THAT(bench.takeWrites(), ElementsAre("AG0055;"));
    bench.display.rfGainSlider.drag(0);
    EXPECT_THAT(bench.takeWrites(), ElementsAre("RG0000;"));
    bench.advance(5ms);
    EXPECT_THAT(bench.takeWrites(), ElementsAre("AG0255;"));
    bench.advance(1min);
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
    slider.drag(7);
    EXPECT_THAT(bench.takeWrites(), ElementsAre("AG0007;"));
}

TEST(GainSliders, AreNotPulledBackByReportsOfTheirOwnWay) {
    TestBench bench;
    Slider& slider = bench.display.rfGainSlider;
    slider.drag(100);
    slider.drag(200);
    bench.receive("RG0100;");
    EXPECT_EQ(slider.integerValue(), 200);
    bench.advance(60ms);
    bench.receive("RG0200;");
    bench.advance(40ms);
    EXPECT_EQ(slider.integerValue(), 200);
    slider.drag(210);
    bench.receive("RG0180;");  // the transceiver's own knob is turned at the same moment
    bench.advance(50ms);
    EXPECT_EQ(slider.integerValue(), 180);
    bench.receive("RG0170;");
    EXPECT_EQ(slider.integerValue(), 170);
}

TEST(AutomaticPowerOff, SwitchesOffAfterHalfHoursUnlessTakenBack) {
    TestBench bench;
    bench.outlastOpening();
    PopUpButton& powerOff = bench.display.APOPopUpButton;
    bench.controller.link.build("KY6;");
    powerOff.choose(1);
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
    EXPECT_EQ(bench.controller.powerOff.vqAPO(), 1);
    bench.receive("RM1100000;");
    bench.advance(30min - 1ms);
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
    bench.takeSounds();
    bench.advance(1ms);
    EXPECT_THAT(bench.takeWrites(), ElementsAre("PS0;"));
    EXPECT_EQ(powerOff.indexOfSelectedItem(), 0);
    EXPECT_EQ(bench.controller.powerOff.vqAPO(), 0);
    EXPECT_EQ(bench.display.sMeter.integerValue(), 0);
    EXPECT_THAT(bench.takeSounds(), ElementsAre("file Seatbelts"));

    powerOff.choose(2);
    powerOff.choose(0);
    bench.advance(2h);
    EXPECT_THAT(bench.takeWrites(), IsEmpty());

    // Every choice schedules its own switch-off; the first one that is due while armed switches off.
    powerOff.choose(2);
    powerOff.choose(0);
    powerOff.choose(4);
    bench.advance(1h);
    EXPECT_THAT(bench.takeWrites(), ElementsAre("PS0;"));
    bench.advance(2h);
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
}

}  // namespace
}  // namespace corvane
