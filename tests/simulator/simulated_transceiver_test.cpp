#include "simulator/simulated_transceiver.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "simulator/decimal_field.h"
#include "tests/simulator/radio_on_line.h"

namespace simulator {
namespace {

using namespace std::chrono_literals;

TEST(SimulatedTransceiver, AnswersTakeTheirTimeOnTheLine) {
    struct Case {
        std::string_view commands;
        std::string_view answers;
        Time earliest;
        Time latest;
    };
    for (const Case& each : {Case{"FA;", "FA014250000;", 10ms, 11ms}, Case{"ZZ;", "?;", 4ms, 5ms},
                             Case{"FA;ZZ;", "FA014250000;?;", 10ms, 11ms},
                             Case{"IF;OI;IF;",
                                  "IF000014250000+000000200000;OI000007074000+000000C00000;"
                                  "IF000014250000+000000200000;",
                                  24ms, 26ms}}) {
        RadioOnLine line;
        EXPECT_EQ(line.exchange(each.commands), each.answers);
        EXPECT_GE(line.lastSent, each.earliest) << each.commands;
        EXPECT_LE(line.lastSent, each.latest) << each.commands;
        EXPECT_FALSE(line.radio.nextEvent().has_value());
    }
}

TEST(SimulatedTransceiver, PutsCommandsTogetherFromPieces) {
    RadioOnLine line;
    for (const std::string_view piece : {"F", "A0071", "00000;FA"}) EXPECT_EQ(line.exchange(piece), "");
    EXPECT_EQ(line.exchange(";FB;"), "FA007100000;FB007074000;");
    EXPECT_EQ(line.exchange(std::string(1'000'000, 'x')), "");
    EXPECT_EQ(line.exchange(";FA;"), "?;FA007100000;");
}

TEST(SimulatedTransceiver, ReportsOnlyWhatChangedAndOnlyWithAutoInformation) {
    struct Case {
        std::string_view commands;
        std::string_view reports;
    };
    constexpr Case cases[] = {
        {"FA014251000;", "IF000014251000+000000200000;FA014251000;"},
        {"FA014250000;AG0080;PA01;", ""},
        {"FB007075000;", "FB007075000;"},
        {"MD01;", "IF000014250000+000000100000;MD01;"},
        {"MD07;", "IF000014250000+000000700000;MD07;GT04;"},
        {"VS1;", "VS1;MC002;MD0C;GT05;"},
        {"SV;", "FB014250000;IF000007074000+000000C00000;FA007074000;MD0C;GT05;"},
        {"MC009;", "IF009010000000+000000510000;MC009;FA010000000;MD05;GT05;"},
        {"NB01;PC100;SS0510000;", "NB01;PC100;SS0510000;"},
        {"EX0101040480;EX0101040480;", "EX0101040480;"},
        {"KM1TEST;MW001007000000+000000210000;", ""},
        {"PS0;", "PS0;"},
    };
    for (const Case& each : cases) {
        RadioOnLine line;
        EXPECT_EQ(line.exchange(each.commands), "") << each.commands;
        RadioOnLine reporting;
        EXPECT_EQ(reporting.exchange("AI1;" + std::string(each.commands)), each.reports) << each.commands;
    }
}

TEST(SimulatedTransceiver, AHandAtThePanelIsReportedAndNotLogged) {
    RadioOnLine line;
    line.exchange("AI1;");
    EXPECT_TRUE(line.radio.tuneBy(-500));
    EXPECT_TRUE(line.radio.setAfGain(7));
    EXPECT_TRUE(line.radio.setPower(5));
    line.radio.hear(300);
    line.pass(100ms);
    EXPECT_EQ(line.sent, "IF000014249500+000000200000;FA014249500;AG0007;PC005;RM1255000;");
    EXPECT_FALSE(line.radio.tune(75'000'001));
    EXPECT_FALSE(line.radio.tuneBy(-2'000'000'000));
    EXPECT_FALSE(line.radio.setMode('0'));
    EXPECT_FALSE(line.radio.setPower(-5));
    EXPECT_EQ(line.radio.received().total(), 1U);
}

TEST(SimulatedTransceiver, SwitchedOffItKnowsOnlyItsPowerAndTheSecondCommandSwitchesItOn) {
    RadioOnLine line;
    line.exchange("AI1;PS0;");
    EXPECT_EQ(line.exchange("FA;PS;XX;AI1;"), "PS0;");
    EXPECT_FALSE(line.radio.tune(7'000'000));
    EXPECT_EQ(line.exchange("PS1;FA;PS;"), "PS0;");
    EXPECT_EQ(line.exchange("PS1;PS;AI;FA;"), "PS1;AI0;FA014250000;");
    line.radio.setPowered(false);
    EXPECT_EQ(line.exchange("PS1;PS;"), "PS0;") << "woken only once more";
    line.radio.setPowered(true);
    EXPECT_EQ(line.exchange("PS;"), "PS1;");
}

TEST(SimulatedTransceiver, PlaysTextsOneAfterTheOtherAsTheyStoodThen) {
    RadioOnLine line;
    line.radio.hear(100);
    line.exchange("AI1;");
    EXPECT_EQ(line.exchange("KM5CQ};KYA;KM5TEST};KYA;KM5OLD};RM1;", 100ms), "RM1000000;TX2;RM1000000;");
    EXPECT_TRUE(line.radio.state().transmitting);
    EXPECT_EQ(line.radio.textsOnAir(), (std::deque<std::string>{"CQ"}));
    line.pass(1200ms);
    EXPECT_EQ(line.radio.textsOnAir(), (std::deque<std::string>{"CQ", "TEST"}));
    line.pass(2400ms);
    EXPECT_FALSE(line.radio.state().transmitting);
    EXPECT_TRUE(line.sent.ends_with("RM1100000;TX0;")) << line.sent;
    EXPECT_EQ(line.exchange("KM5;"), "KM5OLD;");
    EXPECT_EQ(line.exchange("TX1;TX;RM1;"), "RM1000000;TX1;TX1;RM1000000;");
    EXPECT_EQ(line.exchange("TX0;TX2;"), "RM1100000;TX0;?;");
    line.exchange("EN11;PS0;");
    EXPECT_FALSE(line.radio.state().transmitting);
}

TEST(SimulatedTransceiver, SpinsAtAHundredAndTenReportsASecond) {
    RadioOnLine line;
    line.exchange("AI1;");
    line.pieces.clear();
    line.sent.clear();
    line.radio.spin(8s);
    line.pass(9s);
    const auto countOf = [&](std::string_view name) {
        return std::ranges::count_if(line.pieces, [&](const std::string& piece) { return piece.starts_with(name); });
    };
    EXPECT_EQ(countOf("FA"), 330);
    EXPECT_EQ(countOf("RM"), 272);
    EXPECT_EQ(countOf("IF"), 243);
    EXPECT_EQ(countOf("FD"), 34);
    EXPECT_EQ(line.pieces.size(), 879U);
    EXPECT_EQ(line.sent.size(), 13'994U);
    EXPECT_LE(line.lastSent, 8300ms) << "the line keeps up";
    EXPECT_EQ(line.exchange("FA;"), "FA014253300;");
    EXPECT_FALSE(line.radio.nextEvent().has_value());
}

TEST(SimulatedTransceiver, InstantAnswersComeWithinTheCallAlsoWhenAnsweredFromWithin) {
    SimulatedTransceiver radio;
    radio.setInstantAnswers(true);
    std::string sent;
    int channel = 1;
    radio.transmit = [&](std::string_view bytes) {
        sent += bytes;
        if (++channel <= 99) radio.receive("MR" + decimalField(channel, 3) + ";", {});
    };
    radio.receive("MR001;", {});
    EXPECT_EQ(radio.received().count("MR"), 99U);
    EXPECT_TRUE(sent.starts_with("MR001014250000+000000210000;MR002007200000+000000110000;"));
    EXPECT_EQ(std::ranges::count(sent, '?'), 99 - 14);
}

TEST(SimulatedTransceiver, KeepsWhatItReceived) {
    RadioOnLine line;
    line.pass(3s);
    line.exchange("FA;FA007100000;x;");
    const std::deque<ReceivedCommand> expected{{3s, "FA;"}, {3s, "FA007100000;"}, {3s, "x;"}};
    EXPECT_EQ(line.radio.received().commands(), expected);
    EXPECT_EQ(line.radio.received().count("FA"), 2U);
    EXPECT_EQ(line.radio.received().count("?"), 1U);
    for (int burst = 0; burst < 1'200; ++burst)
        line.radio.receive("BI1;BI1;BI1;BI1;BI1;BI1;BI1;BI1;BI1;BI1;", line.now);
    EXPECT_EQ(line.radio.received().commands().size(), ReceivedLog::capacity);
    EXPECT_EQ(line.radio.received().total(), 12'003U);
    line.radio.clearReceived();
    EXPECT_EQ(line.radio.received().total(), 0U);
}

}  // namespace
}  // namespace simulator
