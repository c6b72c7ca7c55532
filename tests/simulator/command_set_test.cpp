#include "simulator/command_set.h"

#include <gtest/gtest.h>

#include "simulator/simulated_transceiver.h"

namespace simulator {
namespace {

/// Carries out the commands before the "|" at the panel, then the read command after it.
struct Case {
    std::string_view commands;
    std::string_view read;
    std::string_view answer;
};

TEST(CommandSet, SettingsAreReadBackInTheirOwnForm) {
    constexpr Case cases[] = {
        {"FA007074500;", "FA;", "FA007074500;"},
        {"FB000030000;", "FB;", "FB000030000;"},
        {"FA075000000;", "IF;", "IF000075000000+000000200000;"},
        {"VS1;MD0F;", "OI;", "OI000007074000+000000F00000;"},
        {"VS1;", "VS;", "VS1;"},
        {"SV;", "FB;", "FB014250000;"},
        {"SV;", "MD0;", "MD0C;"},
        {"AG0005;", "AG0;", "AG0005;"},
        {"RG0000;", "RG0;", "RG0000;"},
        {"GT04;MD07;", "GT0;", "GT04;"},
        {"GT04;MD05;", "GT0;", "GT05;"},
        {"GT04;MD02;", "GT0;", "GT06;"},
        {"RF05;", "RF0;", "RF0A;"},
        {"BC01;", "BC0;", "BC01;"},
        {"BP00001;", "BP00;", "BP00001;"},
        {"CO000001;", "CO00;", "CO000001;"},
        {"BI0;", "BI;", "BI0;"},
        {"SF0D;SF09;", "SF0;", "SF09;"},
        {"SS03A00000;", "SS03;", "SS03A0000;"},
        {"SS0810000;", "SS08;", "SS0810000;"},
        {"KM2CQ TEST;", "KM2;", "KM2CQ TEST;"},
        {"KM5};", "KM5;", "KM5;"},
        {"EM05RYRY};", "EM05;", "EM05RYRY;"},
        {"EM15A}B};", "EM15;", "EM15A}B;"},
        {"AC002;", "AC;", "AC001;"},
        {"EX040101W1AW;", "EX040101;", "EX040101W1AW        ;"},
        {"AI1;", "AI;", "AI1;"},
        {"QI;FA003600000;MD01;QR;", "IF;", "IF000014250000+000000200000;"},
    };
    for (const Case& each : cases) {
        SimulatedTransceiver radio;
        radio.operate(each.commands);
        EXPECT_EQ(radio.ask(each.read), each.answer) << each.commands;
    }
}

TEST(CommandSet, WhatItCannotDoIsRejectedAndChangesNothing) {
    const std::vector<std::string_view> rejectedCommands[] = {
        // out of the range of a setting, or a value that it does not have
        {"FA000029999;", "FA075000001;", "MD00;", "MD0G;", "MD0 ;", "VS2;", "BS12;", "AG0256;", "PC004;", "PC101;"},
        {"GT05;", "RA04;", "PA03;", "RF03;", "RL000;", "RL016;", "NL0011;", "SF02;", "SF12;", "SS03B0000;", "AI2;"},
        {"SS04+30.5;", "SS04+00.3;", "AC003;", "EX999999;", "PS2;"},
        // of another width, or not as it is written
        {"FA14250000;", "FA01425000X;", "FA0142500000;", "MD022;", "SV1;", "BS5;", "AG05;", "SS0570100;", "IF000;"},
        // no such channel or text, or nothing in it
        {"MC011;", "MC100;", "MR011;", "MT011;", "KM0;", "KM6TEXT;", "EM06;", "EM21;", "KY5;", "EN06;", "QR;"},
        {"MT0011THIRTEEN CHAR;", "KM1TEXT THAT IS FIFTY-ONE CHARACTERS LONG, ONE TOO MANY;"},
        // no command at all
        {"fa;", ";", "ZZ;", "FA\xff\xfe;", "KM1\xc3\xa9;"},
    };
    SimulatedTransceiver radio;
    const std::string before = radio.ask("IF;") + radio.ask("OI;") + radio.ask("AG0;") + radio.ask("SS03;");
    for (const auto& commands : rejectedCommands)
        for (const std::string_view command : commands) {
            EXPECT_EQ(radio.ask(command), "?;") << command;
            EXPECT_FALSE(radio.operate(command)) << command;
        }
    EXPECT_EQ(before, radio.ask("IF;") + radio.ask("OI;") + radio.ask("AG0;") + radio.ask("SS03;"));
}

TEST(CommandSet, EachBandRemembersItsLastFrequencyAndMode) {
    SimulatedTransceiver radio;
    radio.operate("BS03;FA007030000;MD07;BS05;");
    EXPECT_EQ(radio.ask("FA;") + radio.ask("MD0;"), "FA014250000;MD02;");
    radio.operate("BS11;FA006000000;BS03;");
    EXPECT_EQ(radio.ask("FA;") + radio.ask("MD0;"), "FA007030000;MD07;");
    radio.operate("BS11;");
    EXPECT_EQ(radio.ask("FA;"), "FA006000000;");
}

TEST(CommandSet, ZeroInMovesOntoTheSignalInCwOnly) {
    SimulatedTransceiver radio;
    radio.hear(100, -130);
    radio.operate("ZI0;");
    EXPECT_EQ(radio.ask("FA;"), "FA014250000;");
    radio.operate("MD03;ZI0;ZI0;");
    EXPECT_EQ(radio.ask("FA;"), "FA014249870;");
}

}  // namespace
}  // namespace simulator
