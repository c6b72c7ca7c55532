#include <gtest/gtest.h>

#include "simulator/simulated_transceiver.h"

namespace simulator {
namespace {

TEST(MemoryChannels, AChannelIsWrittenTaggedReadAndEmptied) {
    SimulatedTransceiver radio;
    EXPECT_FALSE(radio.operate("MT0331NO CHANNEL  ;"));
    EXPECT_TRUE(radio.operate("MW033007074000+000000C10000;MT0331FT8;"));
    EXPECT_EQ(radio.ask("MR033;"), "MR033007074000+000000C10000;");
    EXPECT_EQ(radio.ask("MT033;"), "MT0331FT8         ;");
    EXPECT_TRUE(radio.operate("MW033003573000+000000C10000;"));
    EXPECT_EQ(radio.ask("MT033;"), "MT0331FT8         ;") << "the tag stays when the channel is written again";
    EXPECT_TRUE(radio.operate("MW033000000000+0000001000001-- ERASE -- ;"));
    EXPECT_EQ(radio.ask("MR033;") + radio.ask("MT033;"), "?;?;");
}

TEST(MemoryChannels, WhatCannotBeAChannelIsNotWritten) {
    SimulatedTransceiver radio;
    for (const std::string_view command :
         {"MW000007074000+000000210000;", "MW100007074000+000000210000;", "MW501007074000+000000210000;",
          "MW033000029999+000000210000;", "MW033007074000+000000010000;", "MW03300707400 +000000210000;",
          "MW033007074000+00000021000;", "MW033007074000+0000002100000;", "MW33;"})
        EXPECT_FALSE(radio.operate(command)) << command;
    EXPECT_EQ(radio.ask("MR033;"), "?;");
    EXPECT_TRUE(radio.operate("MW001;"));
    EXPECT_EQ(radio.ask("MR001;"), "MR001014250000+000000210000;") << "a channel alone writes nothing";
}

TEST(MemoryChannels, ASideGoesToAChannelAndBackToItsVfo) {
    SimulatedTransceiver radio;
    radio.operate("FA014200000;MC005;");
    EXPECT_EQ(radio.ask("IF;") + radio.ask("MC;"), "IF005014050000+000000310000;MC005;");
    radio.operate("FA014051000;");
    EXPECT_EQ(radio.ask("IF;"), "IF005014051000+000000310000;") << "tuned, still on the channel";
    EXPECT_EQ(radio.ask("MR005;"), "MR005014050000+000000310000;");
    radio.operate("VM;");
    EXPECT_EQ(radio.ask("IF;"), "IF000014200000+000000200000;");
    radio.operate("VM;");
    EXPECT_EQ(radio.ask("IF;"), "IF005014050000+000000310000;");
    radio.operate("MC503;");
    EXPECT_EQ(radio.ask("IF;"), "IF503005357000+000000210000;");
}

TEST(MemoryChannels, EachSideHasItsOwnAndLosesOneThatIsEmptied) {
    SimulatedTransceiver radio;
    radio.operate("MC003;VS1;MC005;");
    EXPECT_EQ(radio.ask("IF;").substr(0, 5) + radio.ask("OI;").substr(0, 5), "IF003OI005");
    radio.clearChannel(5);
    EXPECT_EQ(radio.ask("IF;").substr(0, 5) + radio.ask("OI;"), "IF003OI000007074000+000000C00000;");
    EXPECT_FALSE(radio.operate("VM;")) << "there is nothing to go to";
}

TEST(MemoryChannels, AMemoryIsCopiedToVfoA) {
    SimulatedTransceiver radio;
    radio.operate("VS1;MC009;MA;");
    EXPECT_EQ(radio.ask("FA;"), "FA010000000;");
    EXPECT_EQ(radio.ask("OI;").substr(0, 5), "OI009");
}

TEST(MemoryChannels, QuickMemoriesComeBackNewestFirstAndOnlyFiveAreKept) {
    SimulatedTransceiver radio;
    for (const int kilohertz : {7010, 7020, 7030, 7040, 7050, 7060}) {
        radio.tune(kilohertz * 1000);
        radio.operate("QI;");
    }
    std::string recalled;
    for (int press = 0; press < 6; ++press) {
        radio.operate("QR;");
        recalled += radio.ask("FA;").substr(4, 4) + " ";
    }
    EXPECT_EQ(recalled, "7060 7050 7040 7030 7020 7060 ");
}

TEST(MemoryChannels, AHandProgramsAndRefuses) {
    SimulatedTransceiver radio;
    EXPECT_TRUE(radio.programChannel(44, {{3'940'000, '1'}, "EVENING NET OF THE CLUB"}));
    EXPECT_EQ(radio.ask("MT044;"), "MT0441EVENING NET ;");
    EXPECT_FALSE(radio.programChannel(100, {{3'940'000, '1'}, ""}));
    EXPECT_FALSE(radio.clearChannel(0));
}

}  // namespace
}  // namespace simulator
