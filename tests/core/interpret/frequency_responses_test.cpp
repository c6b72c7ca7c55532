#include <gmock/gmock.h>

#include "interpret/band_table.h"
#include "interpret/spoken_frequency.h"
#include "tests/support/test_bench.h"

namespace corvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Texts = std::vector<std::string>;

// What a frequency report changes on its side: stored, title, entry field, spoken form, active VFO, operator class.
Texts shown(const TestBench& bench, char side) {
    const RadioState& radio = bench.radio;
    const Display& display = bench.display;
    return {side == 'A' ? radio.vqFreqA : radio.vqFreqB,
            (side == 'A' ? display.vqFreqAButton : display.vqFreqBButton).title(),
            display.freqTextField.stringValue(),
            side == 'A' ? radio.vqVFOA : radio.vqVFOB,
            display.activeVfoField.stringValue(),
            display.licenseClassButton.title()};
}

TEST(FrequencyResponses, AFrequencyIsStoredShownSpokenAndAskedAfter) {
    const struct {
        std::string digits;
        std::string title, entry, spoken, operatorClass;
        int band;
    } cases[] = {{"014250000", "14.250.000", "14.250", "1 4 dot 250", "General", 20},
                 {"007074500", "7.074.500", "7.074", "7 dot 074 dot 5", "Technician CW", 40},
                 {"000540010", "0.540.010", "0.540", "0 dot 540 dot 01", "Out of Band", 162},
                 {"050125001", "50.125.001", "50.125", "5 0 dot 125 dot 001", "Technician", 6},
                 {"000000000", "0.000.000", "0.000", "0 dot 000", "Out of Band", 161},
                 {"12x456789", "0.456.789", "0.456", "0 dot 456 dot 789", "Out of Band", 161}};
    TestBench bench;
    for (const auto& row : cases) {
        for (const char side : {'A', 'B'}) {
            bench.receive(std::string("F") + side + row.digits + ';');
            EXPECT_EQ(shown(bench, side),
                      (Texts{row.digits, row.title, row.entry, row.spoken, {side}, row.operatorClass}));
            EXPECT_THAT(bench.markedBands(), ElementsAre(row.band));
            EXPECT_EQ(bench.takeWrites(), (Writes{"GT0;", "RA0;", "RF0;"}));
        }
    }
}

TEST(FrequencyResponses, AFrequencyOfAnotherLengthIsStoredAndNothingElse) {
    for (const std::string digits : {"", "0142500", "01425000", "0142500000"}) {
        TestBench bench;
        bench.receive("FA014250000;FB007074000;");
        bench.forgetWhatHappened();
        bench.receive("FA" + digits + ";FB" + digits + ';');
        EXPECT_EQ(bench.radio.vqFreqA, digits);
        EXPECT_EQ(bench.radio.vqFreqB, digits);
        EXPECT_EQ(bench.takeChanges(), ControlNames{}) << digits;
        EXPECT_THAT(bench.takeWrites(), IsEmpty());
        EXPECT_EQ(bench.radio.vqAorB, "B");
    }
}

TEST(FrequencyResponses, OnAMemoryChannelTheFrequencyButtonKeepsItsTitle) {
    TestBench bench;
    bench.receive("FA014250000;FB007074000;IF012;OI013;FA021285000;");
    EXPECT_EQ(shown(bench, 'A'), (Texts{"021285000", "14.250.000", "21.285", "1 4 dot 250", "A", "General"}));
    bench.receive("FB014074000;");
    EXPECT_EQ(shown(bench, 'B'), (Texts{"014074000", "7.074.000", "14.074", "7 dot 074", "B", "General CW"}));
    EXPECT_THAT(bench.markedBands(), ElementsAre(20));
}

TEST(FrequencyResponses, WhatAMemoryChannelReceivesIsInSightWhileASideIsOnIt) {
    TestBench bench;
    const auto shown = [&] {
        return std::pair{bench.display.channelFrequencyAField.stringValue(),
                         bench.display.channelFrequencyBField.stringValue()};
    };
    using Shown = std::pair<std::string, std::string>;
    bench.receive("IF006014155000+012010200000;");
    EXPECT_EQ(shown(), Shown("14.155.000", ""));
    EXPECT_EQ(bench.display.vqFreqAButton.title(), "");
    bench.receive("FA007100500;");
    EXPECT_EQ(shown(), Shown("7.100.500", ""));
    bench.receive("FB003600000;OI501014155000+012010200000;");
    EXPECT_EQ(shown(), Shown("7.100.500", "14.155.000"));
    bench.receive("FB003600000;IF000014155000+012010200000;");
    EXPECT_EQ(shown(), Shown("", "3.600.000"));
    bench.press(501);
    EXPECT_EQ(shown(), Shown("", ""));
}

TEST(FrequencyResponses, BandsEndOnTheirLastHertz) {
    const struct {
        int lower, upper, tag;
    } bands[] = {{50000000, 54000000, 6},  {28000000, 29700000, 10}, {24890000, 24990000, 12}, {21000000, 21450000, 15},
                 {18068000, 18168000, 17}, {14000000, 14350000, 20}, {10100000, 10150000, 30}, {7000000, 7300000, 40},
                 {5329000, 5404999, 60},   {3500000, 4000000, 80},   {1800000, 2000000, 160},  {540000, 1700000, 162}};
    for (const auto& [lower, upper, tag] : bands) {
        EXPECT_EQ(bandKeyTag(lower), tag);
        EXPECT_EQ(bandKeyTag(upper), tag);
        EXPECT_EQ(bandKeyTag(lower - 1), 161);
        EXPECT_EQ(bandKeyTag(upper + 1), 161);
    }
    for (const int frequency : {0, -1, 30000000, 2147483647}) EXPECT_EQ(bandKeyTag(frequency), 161);
}

TEST(FrequencyResponses, MemoryChannelIsShownWhileSideAIsActive) {
    TestBench bench;
    bench.receive("VS0;MR001007074000+000000210000040M FT8     ;VS1;");
    bench.receive("MC005;");
    EXPECT_EQ(bench.display.vqMemAButton.title(), "  M-01 40M FT8");
    EXPECT_EQ(bench.radio.vqMemCh, "005");
    EXPECT_EQ(bench.radio.vqMemChA, "005");
    EXPECT_EQ(bench.radio.vqMemChB, "005");
    bench.receive("VS0;MC0117;");
    EXPECT_EQ(bench.radio.vqMemCh, "117");
    EXPECT_EQ(bench.display.vqMemAButton.title(), "  M-17 40M FT8");
    bench.receive("VS1;MC008;");
    EXPECT_EQ(bench.display.vqMemAButton.title(), "  M-17 40M FT8");
}

// What tunes it, title and color of the memory key, colors of the frequency keys, the channel in the pop-up.
using Side = std::tuple<std::string, std::string, Color, Color, Color, int>;

TEST(FrequencyResponses, AnInformationRecordTellsWhatItsSideIsTunedBy) {
    const struct {
        std::string channel;
        Side afterIf, afterOi;
    } cases[] = {{"000",
                  {"vfo", "was", Color::none, Color::red, Color::none, 41},
                  {"vfo", "was", Color::none, Color::none, Color::green, 41}},
                 {"501", {"memory", "  5-01", Color::brown, Color::none, Color::none, 41}, {}},
                 {"500", {"memory", "  5-00", Color::brown, Color::none, Color::none, 41}, {}},
                 {"012", {"memory", "  M-12 20M SSB", Color::purple, Color::none, Color::none, 11}, {}},
                 {"117", {"memory", "  M-17  ", Color::purple, Color::none, Color::none, 16}, {}},
                 {"099", {"memory", "  M-99  ", Color::purple, Color::none, Color::none, 98}, {}},
                 {"0xy", {"memory", "  M-xy first", Color::purple, Color::none, Color::none, 0}, {}},
                 {"100", {"memory", "was", Color::pink, Color::pink, Color::pink, 41}, {}}};
    for (const auto& row : cases) {
        for (const bool sideA : {true, false}) {
            TestBench bench;
            putChannel(bench.controller.memories, 11, {" ", " ", "20M SSB"});
            putChannel(bench.controller.memories, 0, {" ", " ", "first"});
            for (const char vfo : {'A', 'B'}) bench.controller.mirror.setTunedBy(vfo, "untouched");
            bench.display.vqMemAButton.setTitle("was");
            bench.display.memPopUpButton.selectItem(41);
            for (Button* button :
                 {&bench.display.vqMemAButton, &bench.display.vqFreqAButton, &bench.display.vqFreqBButton})
                button->setBezelColor(Color::pink);

            bench.receive((sideA ? "IF" : "OI") + row.channel + "014155000+012010200000;");

            const Side side{
                sideA ? bench.radio.vqModeA : bench.radio.vqModeB, bench.display.vqMemAButton.title(),
                bench.display.vqMemAButton.bezelColor(),           bench.display.vqFreqAButton.bezelColor(),
                bench.display.vqFreqBButton.bezelColor(),          bench.display.memPopUpButton.indexOfSelectedItem()};
            EXPECT_EQ(side, sideA || row.channel != "000" ? row.afterIf : row.afterOi) << row.channel << sideA;
            EXPECT_EQ(sideA ? bench.radio.vqModeB : bench.radio.vqModeA, "untouched");
        }
    }
}

TEST(FrequencyResponses, AModeChoosesItsKeyerMemories) {
    const Writes none, cw{"KM1;", "KM2;", "KM3;", "KM4;", "KM5;"}, rtty{"EM01;", "EM02;", "EM03;", "EM04;", "EM05;"},
        psk{"EM11;", "EM12;", "EM13;", "EM14;", "EM15;"};
    // clang-format off
    const struct {
        std::string response, mode;
        int item;
        Writes writes;
        std::string box;
    } cases[] = {
        {"MD03", "CW-U", 2, cw, "Send CW"}, {"MD02", "USB", 1, none, "Keyer / Encoder"},
        {"MD07", "CW-L", 6, cw, "Send CW"}, {"MD0C", "DATA-U", 0, none, "Keyer / Encoder"},
        {"MD06", "RTTY-L", 5, rtty, "Send RTTY"}, {"MD09", "RTTY-U", 8, rtty, "Send RTTY"},
        {"MD0E", "PSK", 0, psk, "Send PSK"}, {"MD00", "PSK", -1, none, "Keyer / Encoder"},
        {"MD0F", "DATA-FM-N", 0, none, "Keyer / Encoder"}, {"MD0x", "DATA-FM-N", 0, none, "Keyer / Encoder"}
    };
    // clang-format on
    TestBench bench;
    Display& display = bench.display;
    for (const auto& row : cases) {
        bench.receive(row.response + ';');
        EXPECT_EQ(bench.radio.vqMode, row.mode) << row.response;
        EXPECT_EQ(display.modesPopUpButton.indexOfSelectedItem(), row.item) << row.response;
        EXPECT_EQ(bench.takeWrites(), row.writes) << row.response;
        EXPECT_EQ(display.sendBox.title(), row.box) << row.response;
        const bool keyer = !row.writes.empty();
        for (const Button* button : display.textMemoryButtons) EXPECT_EQ(button->enabled(), keyer);
        EXPECT_EQ(display.textMemoryField.enabled(), keyer);
        EXPECT_EQ(display.clearTextMemoryButton.enabled(), keyer);
        EXPECT_EQ(display.sendTextMemoryButton.enabled(), keyer);
        EXPECT_EQ(display.sendTextMemoryButton.bezelColor(), keyer ? Color::blue : Color::darkGray);
        EXPECT_EQ(display.sendBox.titleColor() == Color::none, keyer);
    }
}

}  // namespace
}  // namespace corvane
