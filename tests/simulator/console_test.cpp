#include "simulator/console.h"

#include <gtest/gtest.h>

#include <array>

#include "simulator/program_options.h"

namespace simulator {
namespace {

TEST(Console, TypedCommandsTurnTheKnobs) {
    struct Case {
        std::string_view line;
        std::string_view says;
        std::string_view read;
        std::string_view answer;
    };
    constexpr Case cases[] = {
        {"tune 14074000", "ok\n", "FA;", "FA014074000;"},
        {"  tune\t14074000  \r", "ok\n", "FA;", "FA014074000;"},
        {"tune 14.074", "not a number: 14.074\n", "FA;", "FA014250000;"},
        {"tune 99999999999", "not a number: 99999999999\n", "FA;", "FA014250000;"},
        {"tune 29999", "refused\n", "FA;", "FA014250000;"},
        {"step +100", "ok\n", "FA;", "FA014250100;"},
        {"step -100", "ok\n", "FA;", "FA014249900;"},
        {"mode CW-U", "ok\n", "MD0;", "MD03;"},
        {"signal 120", "ok\n", "RM1;", "RM1120000;"},
        {"gain 12", "ok\n", "AG0;", "AG0012;"},
        {"watts 4", "refused\n", "PC;", "PC050;"},
        {"set NB01;VS1;", "ok\n", "VS;", "VS1;"},
        {"set KM1CQ  DE \"N0CALL\";", "ok\n", "KM1;", "KM1CQ  DE \"N0CALL\";"},
        {"memory 5 7074000 USB \"FT8 40 M\"", "ok\n", "MT005;", "MT0051FT8 40 M    ;"},
        {"memory 5 clear", "ok\n", "MR005;", "?;"},
        {"memory 5 7074000 usb", "not a frequency and a mode: 7074000 usb\n", "MR005;", "MR005014050000+000000310000;"},
        {"power off", "ok\n", "PS;", "PS0;"},
        {"tune", "say tune HERTZ\n", "FA;", "FA014250000;"},
        {"quit now", "say quit\n", "FA;", "FA014250000;"},
        {"frobnicate", "unknown command: frobnicate (help lists them)\n", "FA;", "FA014250000;"},
        {"", "", "FA;", "FA014250000;"},
    };
    for (const Case& each : cases) {
        SimulatedTransceiver radio;
        Console console(radio);
        EXPECT_EQ(console.execute(each.line), each.says) << each.line;
        EXPECT_EQ(radio.ask(each.read), each.answer) << each.line;
        EXPECT_FALSE(console.finished());
    }
}

TEST(Console, SwitchesFaultsOnAndOff) {
    SimulatedTransceiver radio;
    Console console(radio);
    for (const std::string_view line : {"silent on", "cut on", "noise on", "late on", "lossy on", "unplug"})
        console.execute(line);
    EXPECT_EQ(radio.faults(), (Faults{true, true, true, true, true, true}));
    for (const std::string_view line : {"silent off", "cut off", "noise off", "late off", "lossy off", "plug"})
        console.execute(line);
    EXPECT_EQ(radio.faults(), Faults{});
    EXPECT_EQ(console.execute("silent maybe"), "say silent on or silent off\n");
}

TEST(Console, TellsStateAndWhatCameIn) {
    SimulatedTransceiver radio;
    Console console(radio);
    radio.receive("VS1;MC005;ZZ;KY6;", std::chrono::milliseconds(1'500));
    EXPECT_EQ(console.execute("received"),
              "     1.500 VS1;\n     1.500 MC005;\n     1.500 ZZ;\n     1.500 KY6;\ntotal 4 KY 1 MC 1 VS 1 ZZ 1\n");
    EXPECT_TRUE(
        console.execute("state").starts_with("A 14250000 USB\nB 14050000 CW-U memory 5 active\n"
                                             "power on, transmitting, auto information off, signal 42\n"));
    EXPECT_EQ(console.execute("on-air"), "CQ CQ CQ DE N0CALL N0CALL K\ntotal 1\n");
    console.execute("clear");
    EXPECT_EQ(console.execute("received"), "total 0\n");
    console.execute("quit");
    EXPECT_TRUE(console.finished());
}

TEST(ProgramOptions, AreReadFromTheCommandLine) {
    EXPECT_EQ(parseOptions({}), ProgramOptions{});
    EXPECT_EQ(parseOptions(std::array{"--instant", "--link", "/tmp/radio", "--silent"}),
              (ProgramOptions{.link = "/tmp/radio", .instant = true, .silent = true}));
    EXPECT_EQ(parseOptions(std::array{"--link"}).fault, "--link needs a path");
    EXPECT_EQ(parseOptions(std::array{"--loud"}).fault, "unknown option --loud");
    for (const std::string_view wanted : {"--link PATH", "tune HERTZ", "lose-first", "unplug"})
        EXPECT_NE(usageText().find(wanted), std::string::npos) << wanted;
}

}  // namespace
}  // namespace simulator
