#include <gmock/gmock.h>

#include "tests/support/test_bench.h"

namespace corvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int before = 1;  // the selected entry before the report
constexpr int none = PopUpButton::noSelection;

TEST(OperatingStateResponses, APopUpShowsAValueOfNoEntryAsItMust) {
    using D = Display;
    // clang-format off
    const struct {
        std::string_view responses;
        PopUpButton D::*popUp;
        int item;
    } cases[] = {
        {"PA03;", &D::ampPopUpButton, none}, {"PA0x;", &D::ampPopUpButton, 0}, {"PA2;", &D::ampPopUpButton, before},
        {"PA002;", &D::ampPopUpButton, before}, {"NL0011;", &D::NBPopupButton, none},
        {"NB01;", &D::NBPopupButton, before}, {"NR01;", &D::DNRPopupButton, before}, {"GT04;", &D::AGCPopUpButton, 4},
        {"GT05;", &D::AGCPopUpButton, 4}, {"GT09;", &D::AGCPopUpButton, 4}, {"GT;", &D::AGCPopUpButton, 0},
        {"RA04;", &D::ATTPopUpButton, none}, {"MS;", &D::smeterPopUpButton, 0}, {"PC101;", &D::powerPopUpButton, none},
        {"PC004;", &D::powerPopUpButton, none}, {"PC;", &D::powerPopUpButton, none}, {"SF00;", &D::MPVDButton, before},
        {"SF1L;", &D::FuncKnobButton, before}, {"SS0060000;", &D::scopeSpeedPopUpButton, none},
        {"SS00A0000;", &D::scopeSpeedPopUpButton, 0}, {"SS03B0000;", &D::colorPopUpButton, 0},
        {"SS04+30.5;", &D::scopeLevelPopUpButton, before}, {"SS04;", &D::scopeLevelPopUpButton, before},
        {"SS06C0000;", &D::spectrumModePopUpButton, 0},
    };
    // clang-format on
    TestBench bench;
    for (const auto& [responses, popUp, item] : cases) {
        (bench.display.*popUp).selectItem(before);
        bench.receive(responses);
        EXPECT_EQ((bench.display.*popUp).indexOfSelectedItem(), item) << responses;
    }
}

TEST(OperatingStateResponses, MeterShowsTensOfTheRawValue) {
    const struct {
        std::string_view response;
        int level;
    } cases[] = {{"RM1045000;", 4}, {"RM1009000;", 0}, {"RM1100000;", 10}, {"RM1255000;", 10}, {"RM1019999;", 1},
                 {"RM;", 0},        {"RM1099000;", 9}, {"RM1x45000;", 0},  {"RM1-50000;", 0}};
    TestBench bench;
    for (const auto& [response, level] : cases) {
        bench.display.sMeter.setIntegerValue(7);
        bench.receive(response);
        EXPECT_EQ(bench.display.sMeter.integerValue(), level) << response;
    }
}

// The slider, the level to come back to, whether it is muted, picture and color of the mute key.
using Volume = std::tuple<int, std::string, int, Image, Color>;

TEST(OperatingStateResponses, AFGainBelowFiveCountsAsMuted) {
    const struct {
        std::string_view response;
        Volume volume;
    } steps[] = {{"AG0120;", {120, "120", 0, Image::none, Color::none}},
                 {"AG0003;", {3, "120", 1, Image::NSImageNameTouchBarAudioOutputMuteTemplate, Color::red}},
                 {"AG0004;", {4, "120", 1, Image::NSImageNameTouchBarAudioOutputMuteTemplate, Color::red}},
                 {"AG0005;", {5, "005", 0, Image::NSImageNameTouchBarAudioOutputVolumeHighTemplate, Color::none}},
                 {"AG0255;", {255, "255", 0, Image::NSImageNameTouchBarAudioOutputVolumeHighTemplate, Color::none}},
                 {"AG0999;", {255, "999", 0, Image::NSImageNameTouchBarAudioOutputVolumeHighTemplate, Color::none}},
                 {"AG0xyz;", {0, "999", 1, Image::NSImageNameTouchBarAudioOutputMuteTemplate, Color::red}}};
    TestBench bench;
    const Button& mute = bench.display.muteButton;
    for (const auto& [response, volume] : steps) {
        bench.receive(response);
        EXPECT_EQ(volume, Volume(bench.display.afGainSlider.integerValue(), bench.radio.vqAFLevel, bench.radio.vqMuted,
                                 mute.image(), mute.bezelColor()))
            << response;
        EXPECT_EQ(mute.tag(), 610) << "only a press changes the tag";
    }
}

TEST(OperatingStateResponses, RFGainMovesItsSlider) {
    TestBench bench;
    bench.receive("RG0200;");
    EXPECT_EQ(bench.radio.vqRFLevel, "200");
    EXPECT_EQ(bench.display.rfGainSlider.integerValue(), 200);
    bench.receive("RG0abc;");
    EXPECT_EQ(bench.radio.vqRFLevel, "abc");
    EXPECT_EQ(bench.display.rfGainSlider.integerValue(), 0);
}

TEST(OperatingStateResponses, ASwitchShowsItsStateAndThePressThatFollowsSendsTheOpposite) {
    const struct {
        std::string on, off;
        int tag;
        Writes pressedWhileOn;
    } switches[] = {{"BC01", "BC00", 228, {"BC00;", "BI1;"}},
                    {"BI1", "BI0", 229, {"BI0;"}},
                    {"BP00001", "BP00000", 233, {"BP00000;", "BI1;"}},
                    {"CO000001", "CO000000", 234, {"CO000000;", "BI1;"}}};
    TestBench bench;
    for (const auto& row : switches) {
        const Button& button = bench.display.key(row.tag);
        for (const bool on : {true, true, false, false, true}) {
            bench.receive((on ? row.on : row.off) + ';');
            EXPECT_EQ(button.tag(), on ? row.tag + 1000 : row.tag) << row.on;
            EXPECT_EQ(button.bezelColor(), on ? Color::blue : Color::none) << row.on;
        }
        bench.press(row.tag);
        EXPECT_EQ(bench.takeWrites(), row.pressedWhileOn);
    }
}

TEST(OperatingStateResponses, KeyerAndTextMemoriesAreTrimmedCutAndShown) {
    TestBench bench;
    Display& display = bench.display;
    bench.receive("KM2CQ CQ DE TEST  ;EM03 RYRY\t;EM14}TU 73;");
    EXPECT_THAT(bench.radio.vqTextMemoryArray, ElementsAre("", "", "CQ CQ DE TEST", "RYRY", "}TU 73", ""));
    EXPECT_EQ(display.key(602).title(), "CQ CQ DE TEST");
    EXPECT_EQ(display.cwMemoryButtons[1].title(), "CQ CQ DE TEST");
    EXPECT_EQ(display.key(603).title(), "RYRY");
    EXPECT_EQ(display.rttyMemoryButtons[2].title(), "RYRY");
    EXPECT_EQ(display.key(604).title(), "}TU 73");
    EXPECT_EQ(display.pskMemoryButtons[3].title(), "}TU 73");
    EXPECT_EQ(bench.radio.vqTextMemoryRevert, "");

    const std::string text = ' ' + std::string(48, 'a') + "\u00e4";  // 50 characters
    bench.receive("EM15" + text + "beyond;");
    EXPECT_EQ(bench.radio.vqTextMemoryRevert, text.substr(1));
    EXPECT_EQ(display.pskMemoryButtons[4].title(), text.substr(1));
    bench.receive("KM5;");
    EXPECT_EQ(bench.radio.vqTextMemoryRevert, "");
    EXPECT_EQ(display.key(605).title(), "");
    EXPECT_EQ(display.pskMemoryButtons[4].title(), text.substr(1));
}

TEST(OperatingStateResponses, SwitchedOffEmptiesTheMeterAndSounds) {
    TestBench bench;
    bench.receive("RM1100000;PS0;");
    EXPECT_EQ(bench.display.sMeter.integerValue(), 0);
    EXPECT_THAT(bench.takeSounds(), ElementsAre("alert Basso"));
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
}

}  // namespace
}  // namespace corvane
