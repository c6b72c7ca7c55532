#include <gmock/gmock.h>

#include "tests/support/radio_bench.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

Writes commandsIn(std::string_view text) {
    Writes commands;
    for (std::size_t end = text.find(';'); end != std::string_view::npos; end = text.find(';')) {
        commands.emplace_back(text.substr(0, end + 1));
        text.remove_prefix(end + 1);
    }
    return commands;
}

// The read requests of sub-menus, e.g. {{106, 5}} for EX010601 to EX010605.
std::string menuRequests(std::initializer_list<std::pair<int, int>> subMenus) {
    std::string text;
    for (const auto& [number, items] : subMenus)
        for (int item = 1; item <= items; ++item)
            if (number != 301 || item < 8 || item > 10) text += "EX0" + std::to_string(number * 100 + item) + ';';
    return text;
}

// The effect of pressing a key: `first` is sent before the command buffer, which is `cmd` afterwards.
struct Press {
    int tag;
    std::string cmd;
    std::string announcement = {};
    Color color = Color::none;
    std::string first = {};
    int offset = 0;  // the tag after the press minus the one before
};

std::vector<Press> pressedOnce() {
    constexpr Color blue = Color::blue, red = Color::red;
    const std::string step250 = "FA014250250;", down250 = "FA014249750;", step1k = "FA014251000;",
                      down1k = "FA014249000;";
    const std::string menu202 = menuRequests({{202, 11}}), menu404 = "EX040401;EX040402;";
    // clang-format off
    return {
        {6, "BS10;BI1;", "magic band", blue}, {10, "BS09;BI1;", "10 meters", blue},
        {12, "BS08;BI1;", "12 meters", blue}, {15, "BS07;BI1;", "15 meters", blue},
        {17, "BS06;BI1;", "17 meters", blue}, {20, "BS05;BI1;", "20 meters", blue},
        {30, "BS04;BI1;", "30 meters", blue}, {40, "BS03;BI1;", "40 meters", blue},
        {60, "BS02;BI1;", "60 meters", blue}, {80, "BS01;BI1;", "80 meters", blue},
        {160, "BS00;BI1;", "gentlemens band", blue}, {161, "BS11;BI1;", "general", blue},
        {162, "MD05;FA001100000;BI1;", "medium wave", blue}, {200, "MD01;BI1;", "", blue},
        {201, "MD02;BI1;", "", blue}, {202, "MD05;BI1;", "", blue}, {203, "MD07;BI1;", "", blue},
        {204, "MD03;BI1;", "", blue}, {205, "MD04;BI1;", "", blue}, {206, "MD06;BI1;", "", blue},
        {207, "MD09;BI1;", "", blue}, {208, "MD08;BI1;", "", blue}, {209, "MD0C;BI1;", "", blue},
        {210, "MD0B;BI1;", "", blue}, {211, "MD0D;BI1;", "", blue}, {212, "MD0A;BI1;", "", blue},
        {213, "MD0E;BI1;", "", blue}, {214, "MD0F;BI1;", "", blue}, {215, "MD00;BI1;", "", blue},
        {225, "BI1;BI1;", "", blue, "", 1000}, {226, "NR01;BI1;", "", blue, "", 1000},
        {227, "NB01;BI1;", "", blue, "", 1000}, {228, "BC01;BI1;", "", blue, "", 1000},
        {229, "BI1;BI1;", "", blue, "", 1000}, {233, "BP00001;BI1;", "", blue, "", 1000},
        {234, "CO000001;BI1;", "", blue, "", 1000}, {275, "SV;VS;FA;IF;BI1;"}, {276, "SV;VS;FB;OI;BI1;"},
        {277, "VM;MC;IF;OI;BI1;"}, {300, "PS1;"}, {301, "PS0;BI1;"}, {351, "SS0300000;BI1;", "", blue, "", 1000},
        {352, "SS0310000;BI1;"}, {353, "SS0320000;BI1;"}, {354, "SS0330000;BI1;"}, {355, "SS0340000;BI1;"},
        {356, "SS0350000;BI1;"}, {357, "SS0360000;BI1;"}, {358, "SS0370000;BI1;"}, {359, "SS0380000;BI1;"},
        {360, "SS0390000;BI1;"}, {361, "SS03A0000;BI1;"}, {379, "ZI0;BI1;"}, {380, "PC015;BI1;", "Tune power"},
        {381, "PC100;BI1;", "Full power"}, {382, "PC015;AC002;BI1;"}, {383, "SS0810000;BI1;", "", red, "", 1000},
        {384, "SS0200000;BI1;", "", red, "", 1000}, {450, step250 + "BI1;", "", Color::none, step250},
        {451, down250 + "BI1;", "", Color::none, down250}, {452, step1k + "BI1;", "", Color::none, step1k},
        {453, down1k + "BI1;", "", Color::none, down1k}, {460, "QI;BI1;"}, {461, "QR;BI1;"},
        {500, "VS1;ST0;MD0;VS0;IF;BI1;", "VFO eh...1 4 dot 250", Color::none, "VS1;"},
        {501, "VS0;ST0;MD0;VS1;OI;BI1;", "VFO bee...7 dot 074 dot 5", Color::none, "VS1;VS1;"},
        {502, "VM;BI1;", "Memory"}, {503, "VS1;MC002;NR0;MD0;BI1;"}, {601, "KY6;BI1;"}, {602, "KY7;BI1;"},
        {603, "KY8;BI1;"}, {604, "KY9;BI1;"}, {605, "KYA;BI1;"}, {606, "BI1;"},
        {610, "AG0000;BI1;", "", red, "", 1000}, {805, ""}, {810, ""}, {811, ""}, {812, ""}, {813, ""}, {814, ""},
        {815, ""},
        {2010100, "AI1;BI1;", "", Color::none, "AI0;" + menuRequests({{101, 19}, {102, 17}, {103, 21}, {104, 20}, {105, 16}, {106, 5}, {107, 6}})},
        {2020100, menu202 + "BI1;", "", Color::none, menuRequests({{201, 20}}) + menu202},
        {2030100, menuRequests({{305, 7}}) + "BI1;", "", Color::none, menuRequests({{301, 26}, {302, 4}, {303, 19}, {304, 7}})},
        {2040100, menu404 + "BI1;", "", Color::none, menuRequests({{401, 6}, {402, 4}, {403, 4}}) + menu404},
        {2050000, "KM1;KM2;KM3;KM4;KM5;EM01;EM02;EM03;EM04;EM05;EM11;EM12;EM13;EM14;EM15;BI1;"},
    };
    // clang-format on
}

// A bench tuned to CW on 14.250 MHz with VFO A, 7.074 500 MHz on VFO B.
struct TunedBench : TestBench {
    TunedBench() {
        receive("FB007074500;FA014250000;MD03;AG0128;RM1100000;");
        forgetWhatHappened();
    }
};

// Runs a key's action, even if the key is disabled.
void expectPress(TestBench& bench, Button& key, const Press& press) {
    const int tag = key.tag();
    bench.controller.go(key);
    EXPECT_EQ(bench.takeWrites(), commandsIn(press.first + press.cmd)) << tag;
    EXPECT_EQ(bench.controller.link.cmd(), press.cmd) << tag;
    EXPECT_EQ(bench.takeSpoken(), press.announcement.empty() ? Writes{} : Writes{press.announcement}) << tag;
    EXPECT_EQ(key.bezelColor(), press.color) << tag;
    EXPECT_EQ(key.tag(), tag + press.offset) << tag;
}

TEST(FrontPanel, EveryKeySendsSaysAndShowsItsOwn) {
    const std::vector<Press> presses = pressedOnce();
    std::vector<int> keys, tags;
    for (const FrontPanelKey& row : frontPanelKeys) keys.push_back(row.outlet.tag);
    for (const Press& press : presses) tags.push_back(press.tag);
    ASSERT_EQ(tags, keys);
    for (const Press& press : presses) {
        TunedBench bench;
        expectPress(bench, bench.display.key(press.tag), press);
    }
}

TEST(FrontPanel, TheTransceiverKnowsWhatEveryKeyAndTheOpeningSay) {
    RadioBench bench;
    std::string answers;
    bench.transceiver.transmit = [&](std::string_view bytes) { answers += bytes; };
    bench.advance(13s);
    EXPECT_EQ(answers.find("?;"), std::string::npos) << answers;
    for (const FrontPanelKey& row : frontPanelKeys) {
        answers.clear();
        bench.controller.go(bench.display.key(row.outlet.tag));
        EXPECT_EQ(answers.find("?;") != std::string::npos, row.outlet.tag == 215) << row.outlet.tag << answers;
        bench.transceiver.setPowered(true);
    }
}

TEST(FrontPanel, ASecondPressSwitchesOffAgain) {
    // clang-format off
    const Press presses[] = {
        {225, "BI0;"}, {226, "NR00;BI1;"}, {227, "NB00;BI1;"}, {228, "BC00;BI1;"}, {229, "BI0;"},
        {233, "BP00000;BI1;"}, {234, "CO000000;BI1;"}, {383, "SS0800000;BI1;"}, {384, "SS0210000;BI1;"},
        {610, "AG0128;BI1;"}
    };
    // clang-format on
    for (Press press : presses) {
        TunedBench bench;
        Button& key = bench.display.key(press.tag);
        key.performClick();
        EXPECT_EQ(key.title(), press.tag == 383 ? "Held" : key.outlet().title);
        bench.forgetWhatHappened();
        press.offset = -1000;
        expectPress(bench, key, press);
        EXPECT_EQ(key.title(), key.outlet().title);
    }
}

TEST(FrontPanel, FirstScopeColorKeyMeansTheSameOnEveryPress) {
    TunedBench bench;
    bench.press(351);
    bench.forgetWhatHappened();
    expectPress(bench, bench.display.key(351), {1351, "SS0300000;BI1;", "", Color::blue});
}

TEST(FrontPanel, ABandKeyMovesTheMark) {
    TunedBench bench;
    ASSERT_THAT(bench.markedBands(), ElementsAre(20));
    for (const Button* button : bench.display.bandButtons) {
        bench.press(button->tag());
        EXPECT_THAT(bench.markedBands(), ElementsAre(button->tag()));
    }
    bench.press(275);
    EXPECT_THAT(bench.markedBands(), IsEmpty());
    bench.press(20);
    bench.press(276);
    EXPECT_THAT(bench.markedBands(), IsEmpty());
}

TEST(FrontPanel, MediumWaveAndStepsFollowTheActiveVfo) {
    const struct {
        std::string_view reports;
        int tag;
        Writes writes;
    } cases[] = {{"VS1;", 162, {"MD05;", "FB001100000;", "BI1;"}},
                 {"FB000540000;", 453, {"FB000539000;", "FB000539000;", "BI1;"}},
                 {"FB007074500;", 450, {"FB007074750;", "FB007074750;", "BI1;"}},
                 {"FA01425;VS0;", 452, {"FA000002425;"}},
                 {"FA;VS0;", 450, {"FA000000250;"}},
                 {"FA0142x0000;VS0;", 452, {"FA000001000;"}}};
    for (auto [reports, tag, writes] : cases) {
        TunedBench bench;
        bench.receive(reports);
        bench.takeWrites();
        if (writes.size() == 1) writes = {writes.front(), writes.front(), "BI1;"};
        bench.press(tag);
        EXPECT_EQ(bench.takeWrites(), writes) << reports;
    }
}

TEST(FrontPanel, PowerOnWakesTheTransceiverAndLeavesTheWindowAlive) {
    TunedBench bench;
    bench.press(300);
    bench.press(20);
    bench.press(300);
    bench.takeSpoken();
    EXPECT_EQ(bench.takeWrites(), (Writes{"PS1;", "BS05;", "BI1;"}));
    bench.advance(1249ms);
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
    EXPECT_TRUE(bench.display.key(300).busy());
    EXPECT_TRUE(bench.display.key(300).enabled()) << "it keeps the keyboard";
    bench.advance(1ms);
    EXPECT_FALSE(bench.display.key(300).busy());
    EXPECT_EQ(bench.takeWrites(), (Writes{"PS1;", "PS1;", "BI1;"}));
    EXPECT_EQ(bench.controller.link.cmd(), "PS1;BI1;");
    bench.press(301);
    EXPECT_EQ(bench.display.sMeter.integerValue(), 0);
    bench.press(300);
    EXPECT_EQ(bench.takeWrites(), (Writes{"PS0;", "BI1;", "PS1;"}));
}

TEST(FrontPanel, MuteKeepsTheVolumeForLater) {
    TunedBench bench;
    bench.press(610);
    EXPECT_EQ(bench.radio.vqMuted, 1);
    EXPECT_EQ(bench.display.muteButton.image(), Image::NSImageNameTouchBarAudioOutputMuteTemplate);
    bench.receive("AG0000;");
    bench.takeWrites();
    bench.press(610);
    EXPECT_EQ(bench.takeWrites(), (Writes{"AG0128;", "BI1;"}));
    EXPECT_EQ(bench.radio.vqMuted, 0);
    EXPECT_EQ(bench.display.muteButton.image(), Image::NSImageNameTouchBarAudioOutputVolumeHighTemplate);
}

TEST(FrontPanel, AVfoKeyShowsItsFrequencyAndSelectsItsSide) {
    TunedBench bench;
    for (const char vfo : {'A', 'B'}) bench.controller.mirror.setTunedBy(vfo, "memory");
    bench.press(501);
    EXPECT_EQ(bench.radio.vqAorB, "B");
    EXPECT_EQ(bench.display.activeVfoField.stringValue(), "B");
    EXPECT_EQ(bench.radio.vqModeB, "vfo");
    EXPECT_EQ(bench.radio.vqModeA, "memory");
    EXPECT_EQ(bench.display.freqTextField.stringValue(), "7.074");
    EXPECT_THAT(bench.markedBands(), ElementsAre(40));
    bench.takeWrites();

    bench.press(501);
    EXPECT_EQ(bench.takeWrites(), commandsIn("VS0;VS0;ST0;MD0;VS1;OI;BI1;"));
    bench.press(500);
    EXPECT_EQ(bench.takeWrites(), commandsIn("VS0;VS0;VS1;ST0;MD0;VS0;IF;BI1;"));
    EXPECT_EQ(bench.radio.vqAorB, "A");
    EXPECT_EQ(bench.radio.vqModeA, "vfo");
    EXPECT_EQ(bench.display.freqTextField.stringValue(), "14.250");
    EXPECT_THAT(bench.markedBands(), ElementsAre(20));

    TestBench fresh;  // no frequency has been reported yet
    fresh.press(500);
    EXPECT_EQ(fresh.display.freqTextField.stringValue(), "");
    EXPECT_THAT(fresh.markedBands(), ElementsAre(161));
}

TEST(FrontPanel, MemoryIsAnnouncedOnlyWhenItIsNews) {
    TunedBench bench;
    bench.press(502);
    bench.press(502);
    EXPECT_THAT(bench.takeSpoken(), ElementsAre("Memory"));
    EXPECT_EQ(bench.radio.vqModeA, "memory");
    EXPECT_EQ(bench.radio.vqModeB, "memory");
    bench.receive("OI000;");
    bench.press(502);
    EXPECT_THAT(bench.takeSpoken(), ElementsAre("Memory"));
}

TEST(FrontPanel, MemoryOnSideBSelectsItsChannel) {
    const struct {
        std::string channel;
        int item;
    } cases[] = {{"002", 1}, {"099", 98}, {"x1y", 0}, {"117", PopUpButton::noSelection}};
    for (const auto& [channel, item] : cases) {
        TunedBench bench;
        bench.receive("MC" + channel + ';');
        bench.press(503);
        EXPECT_EQ(bench.takeWrites(), (Writes{"VS1;", "MC" + channel + ';', "NR0;", "MD0;", "BI1;"}));
        EXPECT_EQ(bench.display.memPopUpButton.indexOfSelectedItem(), item) << channel;
        EXPECT_EQ(bench.radio.vqModeB, "memory");
        EXPECT_EQ(bench.radio.vqModeA, "vfo");
    }
}

TEST(FrontPanel, TextMemoryKeysPlayTheMemoriesOfTheMode) {
    const struct {
        std::string_view mode;
        Writes plays;
    } cases[] = {{"MD07;", {"KY6;", "KY7;", "KY8;", "KY9;", "KYA;"}},
                 {"MD06;", {"EN01;", "EN02;", "EN03;", "EN04;", "EN05;"}},
                 {"MD09;", {"EN01;", "EN02;", "EN03;", "EN04;", "EN05;"}},
                 {"MD0E;", {"EN11;", "EN12;", "EN13;", "EN14;", "EN15;"}}};
    for (const auto& [mode, plays] : cases) {
        TunedBench bench;
        bench.receive(mode);
        bench.receive("KM1CQ;KM2TU;");
        bench.takeWrites();
        for (int slot = 0; slot < 5; ++slot) {
            bench.press(601 + slot);
            EXPECT_EQ(bench.takeWrites(), (Writes{plays[static_cast<std::size_t>(slot)], "BI1;"}));
            if (slot == 1) {
                EXPECT_EQ(bench.display.sentTextMemoryField.stringValue(), "TU\nCQ\n");
            }
        }
        bench.press(606);
        EXPECT_EQ(bench.display.sentTextMemoryField.stringValue(), "");
    }
}

TEST(FrontPanel, APressThatBuildsNoCommandSendsNothing) {
    TunedBench bench;
    bench.press(20);
    bench.receive("MD02;");
    bench.takeWrites();
    for (const int tag : {601, 602, 603, 604, 605, 805, 810, 811, 812, 813, 814, 815}) {
        Button& key = bench.display.key(tag);
        EXPECT_EQ(key.enabled(), tag >= 805) << tag;
        key.setTitle("CQ");
        bench.controller.go(key);
    }
    for (const int tag : {0,   5,   7,   100, 163,  199,  216,  230,  278,  302,     350,     378,    385,
                          454, 504, 600, 607, 1200, 1230, 1300, 1352, 2005, 2010101, 2020000, 2060000}) {
        Button unknown{{"", tag}};
        bench.controller.go(unknown);
        const bool bandTag = tag >= 6 && tag <= 162;
        EXPECT_EQ(unknown.bezelColor(), bandTag ? Color::blue : Color::none) << tag;
        EXPECT_EQ(unknown.tag(), tag);
    }
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
    EXPECT_EQ(bench.controller.link.cmd(), "BS05;BI1;");
    EXPECT_EQ(bench.display.sentTextMemoryField.stringValue(), "");
    EXPECT_THAT(bench.around.browser.opened, ElementsAre("https://site.example/v/corvane/"));
    EXPECT_THAT(bench.markedBands(), IsEmpty());
}

}  // namespace
}  // namespace corvane
