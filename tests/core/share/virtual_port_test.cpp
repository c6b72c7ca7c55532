// A program at the virtual port, from its bytes to the line and back.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "tests/support/radio_bench.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::IsEmpty;

class VirtualPortTest : public testing::Test {
protected:
    VirtualPortTest() {
        bench.display.virtualPortSwitch.performClick();
        port().come();
        bench.outlastOpening();
        settle();
    }
    ~VirtualPortTest() override { bench.controller.link.setSerialPort(nullptr); }

    FakePseudoTerminal& port() { return bench.around.terminal; }
    // What the program is answered, once the transceiver has answered, too.
    std::string ask(std::string_view commands) {
        std::string answer = port().ask(commands);
        for (int turn = 0; turn < 200; ++turn) {
            bench.settle();
            bench.advance(0ms);
        }
        return answer + port().take();
    }
    void settle() {
        bench.settle();
        bench.advance(1s);
        bench.settle();
        bench.takeWrites();
    }
    void silence(bool silent) {
        simulator::Faults faults;
        faults.silent = silent;
        bench.transceiver.setFaults(faults);
    }
    // The bytes on the line, without what Corvane asks for its own sake.
    std::string line() {
        std::string bytes;
        for (const std::string& write : bench.takeWrites()) bytes += write;
        return without(without(bytes, "GT0;RA0;RF0;"), "KM1;KM2;KM3;KM4;KM5;");
    }

    RadioBench bench;
};

TEST_F(VirtualPortTest, CarriesCommandsToTheLineAndAnswersBack) {
    struct Row {
        std::string_view bytes;
        std::string_view line;
        std::string_view answer;
    };
    const std::vector<Row> rows{
        // What the transceiver has reported needs no byte.
        {"FA;", "", "FA014250000;"},
        {"FA;AG0;VS;\r\nPC;ST;TX;", "ST;TX;", "FA014250000;AG0080;VS0;PC050;ST0;TX0;"},
        {"BP00;PA0;RG0;NB0;", "RG0;", "BP00000;PA01;RG0255;NB00;"},
        // What is not certain is asked for.
        {"MD0;", "MD0;", "MD02;"},
        {"IF;", "IF;", "IF000014250000+000000200000;"},
        {"OI;", "OI;IF;", "OI000007074000+000000C00000;"},
        {"MS;GT0;RM1;", "MS;GT0;RM1;", "MS50;GT06;RM1042000;"},
        {"RL0;", "RL0;", "RL008;"},
        {"RL0;", "", "RL008;"},
        {"SS05;KM1;EX010101;", "SS05;KM1;EX010101;", "SS0570000;KM1CQ CQ CQ DE N0CALL N0CALL K;EX010101+00;"},
        {"MR001;MT001;", "MR001;MT001;", "MR001014250000+000000210000;MT001120M PHONE   ;"},
        // Settings: nothing is answered; a question behind them shows whose an error response is.
        {"FA014074000;", "FA014074000;AI;", ""},
        {"FA;", "", "FA014074000;"},
        {"FB007050000;", "FB007050000;VS;AI;", ""},
        {"MD03;", "MD03;AI;", ""},
        {"MD0;", "MD0;", "MD03;"},
        {"VS1;FB;VS0;", "VS1;AI;FB;VS0;AI;", "FB007050000;"},
        {"SV;SV;BS05;", "SV;AI;SV;AI;BS05;AI;", ""},
        {"AC001;", "AC001;AI;", ""},
        {"MC098;", "MC098;AI;", "?;"},
        {"MR098;", "MR098;", "?;"},
        // Auto information is the port's own.
        {"AI;AI1;AI;AI0;AI;AI2;", "", "AI0;AI1;AI0;?;"},
        // Refused here: no such command, or a value that the transceiver would refuse.
        {"fa;FA1;FA000029999;FA075000001;FA01425000x;PC101;MD0Z;IF1;ZZ;\xff;;", "", "?;?;?;?;?;?;?;?;?;?;?;"},
        {"T", "", ""},
        {"X", "", ""},
        {";", "", "TX0;"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(ask(row.bytes), row.answer) << row.bytes;
        EXPECT_EQ(line(), row.line) << row.bytes;
        settle();
    }
    EXPECT_EQ(bench.radio.vqAorB, "A") << "the window must still show the side in use";
}

TEST_F(VirtualPortTest, BoundsWhateverAProgramSends) {
    EXPECT_EQ(ask(std::string(64, 'x') + ";FA;"), "?;FA014250000;");
    EXPECT_EQ(ask(std::string(65, 'x')), "?;");
    EXPECT_EQ(ask(std::string(100'000, 'x') + ";FA;"), "FA014250000;");
    EXPECT_THAT(bench.takeWrites(), IsEmpty());

    // The last value of a program that sets faster than the line carries.
    std::string flood;
    for (int hertz = 14'000'000; hertz < 14'001'000; ++hertz) flood += "FA0" + std::to_string(hertz) + ";";
    ask(flood);
    bench.advance(1s);
    EXPECT_LT(bench.takeWrites().size(), 30U);
    EXPECT_EQ(bench.transceiver.ask("FA;"), "FA014000999;");
    settle();

    // One that does not read loses answers; what it reads later is whole.
    port().reads = false;
    std::string questions;
    for (int i = 0; i < 1000; ++i) questions += "FA;";
    std::string answers = port().ask(questions);
    port().fromPort = answers;
    for (int i = 0; i < 20; ++i) bench.advance(0ms);
    EXPECT_THAT(port().toPort, IsEmpty());
    answers = port().take();
    EXPECT_LE(answers.size(), VirtualPort::mostBacklog);
    EXPECT_EQ(answers.size() % 12, 0U);
}

TEST_F(VirtualPortTest, PassesReportsToAProgramThatAskedForThem) {
    bench.transceiver.tune(14'100'000);
    bench.settle();
    EXPECT_EQ(port().take(), "");
    ask("AI1;");
    bench.transceiver.tune(14'200'000);
    bench.settle();
    EXPECT_THAT(port().take(), HasSubstr("FA014200000;"));
    bench.controller.sendCommand("MR001;MT001;KM1;AI;MC098;");
    bench.settle();
    EXPECT_EQ(port().take(), "") << "Corvane's own questions";
    EXPECT_TRUE(bench.transceiver.state().autoInformation);
    port().leave();
    port().come();
    EXPECT_EQ(ask("AI;"), "AI0;") << "of the program that has left";
}

TEST_F(VirtualPortTest, WaitsForAMemoryReadThatStaysWhole) {
    bench.controller.memories.startMemoryRead();
    bench.settle();
    const MemoryTable alone = bench.controller.memories.vqMemArray();
    bench.transceiver.tune(14'000'000);
    settle();

    // Each answer of the transceiver meets a command that it refuses.
    port().ask("MC098;");
    bench.controller.memories.startMemoryRead();
    std::string expected = "?;";
    for (int i = 0; i < 30; ++i) {
        port().toPort += "FA;MC098;MR304;";
        expected += "FA014000000;?;?;";
    }
    std::string answers;
    for (int i = 0; i < 10; ++i) {
        answers += ask("");
        bench.advance(100ms);
    }
    EXPECT_EQ(answers, expected);
    EXPECT_FALSE(bench.controller.memories.read().running());
    EXPECT_TRUE(bench.controller.memories.read().whole);
    EXPECT_EQ(bench.controller.memories.vqMemArray(), alone);

    // An error response before the answer to "AI;" is the program's, even when that has left.
    silence(true);
    settle();
    for (const bool leaves : {false, true}) {
        EXPECT_EQ(port().ask("MC098;"), "");
        bench.controller.memories.startMemoryRead();
        if (leaves) port().leave();
        if (leaves) port().come();
        bench.receive("?;");
        EXPECT_EQ(bench.controller.memories.read().handled(), 0);
        EXPECT_EQ(port().take(), leaves ? "" : "?;");
        bench.receive("AI1;");
        bench.receive("?;");
        EXPECT_EQ(bench.controller.memories.read().handled(), 1);
        bench.advance(10s);
    }
    silence(false);
    settle();
    // Behind a read that takes longer than 3 s a command is refused; one that needs no byte is answered.
    bench.controller.virtualPort.lineTaken = [] { return true; };
    EXPECT_EQ(port().ask("FA;SV;FA;"), "FA014000000;");
    bench.advance(2900ms);
    EXPECT_EQ(port().take(), "");
    bench.advance(200ms);
    EXPECT_EQ(port().take(), "?;FA014000000;");
    EXPECT_EQ(line(), "");
}

TEST_F(VirtualPortTest, DropsAQuestionWithoutAnAnswerAndIsSilentWithoutATransceiver) {
    silence(true);
    EXPECT_EQ(port().ask("MD0;FA;"), "");
    bench.advance(450ms);
    EXPECT_EQ(port().take(), "");
    bench.advance(100ms);
    EXPECT_EQ(port().take(), "FA014250000;");
    silence(false);
    bench.advance(1s);
    EXPECT_EQ(ask("MD0;"), "MD02;");

    bench.port->unplug();
    EXPECT_EQ(ask("FA;AI;XX;AI1;"), "");
    EXPECT_TRUE(port().offered);
    bench.controller.setSerialPort(bench.port);
    bench.display.openCloseButton.performClick();
    EXPECT_EQ(ask("FA;AI;"), "FA014250000;AI0;");

    bench.transceiver.operate("PS0;");
    bench.settle();
    bench.display.shareTransmitSwitch.performClick();
    EXPECT_EQ(ask("FA;PS;"), "PS0;");
    ask("PS1;");
    bench.advance(1s);
    ask("PS1;");
    EXPECT_EQ(ask("PS;FA;"), "PS1;FA014250000;");
}

TEST_F(VirtualPortTest, TransmitsAndStoresOnlyWithTheOperatorsWord) {
    for (const char* command : {"TX1;", "TX2;", "KY6;", "EN01;", "AC002;", "AC2;", "PS0;", "PS1;"}) {
        EXPECT_EQ(ask(command), "?;") << command;
        EXPECT_EQ(line(), "") << command;
    }
    EXPECT_THAT(bench.display.virtualPortNoticeField.stringValue(), HasSubstr("\"Other programs may transmit\""));
    for (const char* command :
         {"MW001014250000+000000200000;", "MW001;", "MT0011HERE;", "QI;", "KM1CQ;", "EM01CQ;", "EX0101011;"}) {
        EXPECT_EQ(ask(command), "?;") << command;
        EXPECT_EQ(line(), "") << command;
    }
    EXPECT_THAT(bench.display.virtualPortNoticeField.stringValue(), HasSubstr("may change memories and menus"));

    bench.display.shareTransmitSwitch.performClick();
    bench.display.shareStoreSwitch.performClick();
    EXPECT_EQ(bench.display.virtualPortNoticeField.stringValue(), "");
    EXPECT_EQ(ask("MT0011HERE;EX010101+01;"), "");
    EXPECT_EQ(line(), "MT0011HERE;AI;EX010101+01;AI;");
    settle();
    port().ask("FA014070000;FA014074000;TX1;");
    bench.advance(60ms);
    EXPECT_EQ(line(), "FA014070000;AI;FA014074000;AI;TX1;") << "never before the frequency";
    settle();
    EXPECT_EQ(ask("TX;"), "TX1;");
    EXPECT_THAT(bench.display.virtualPortStateField.stringValue(), HasSubstr("ON AIR"));
    EXPECT_EQ(ask("TX0;TX;"), "TX0;");
    EXPECT_EQ(bench.transceiver.ask("TX;"), "TX0;");
    EXPECT_EQ(bench.display.virtualPortStateField.stringValue().find("ON AIR"), std::string::npos);
}

TEST_F(VirtualPortTest, UnkeysWhoeverCannotUnkeyItself) {
    const std::vector<std::function<void()>> ends{
        [this] { port().leave(); },
        [this] { bench.advance(31s); },
        [this] { bench.display.shareTransmitSwitch.performClick(); },
        [this] { bench.display.virtualPortSwitch.performClick(); },
        [this] { bench.display.openCloseButton.performClick(); },
    };
    for (std::size_t i = 0; i < ends.size(); ++i) {
        if (!bench.display.virtualPortSwitch.checked()) bench.display.virtualPortSwitch.performClick();
        if (!bench.display.shareTransmitSwitch.checked()) bench.display.shareTransmitSwitch.performClick();
        if (!port().connected) port().come();
        ask("TX1;");
        settle();
        ASSERT_EQ(bench.transceiver.ask("TX;"), "TX1;") << i;
        ends[i]();
        EXPECT_EQ(bench.transceiver.ask("TX;"), "TX0;") << i;
        settle();
    }
    // A transceiver that seems silent, as while it transmits, gets the end of the transmission, too.
    bench.display.openCloseButton.performClick();
    settle();
    ask("TX1;");
    silence(true);
    port().ask("ST;");
    settle();
    port().ask("TX0;");
    EXPECT_THAT(line(), HasSubstr("TX0;"));
    silence(false);
    settle();
    bench.display.openCloseButton.performClick();
    // So does one whose program waits for the end of a memory read: its "TX0;" goes ahead, but not past another "TX1;".
    bench.display.openCloseButton.performClick();
    settle();
    for (const char* between : {"", "TX1;"}) {
        ask("TX1;");
        settle();
        bench.controller.virtualPort.lineTaken = [] { return true; };
        port().toPort += std::string("MC098;\r\nFA;") + between + "TX0;FA;";
        EXPECT_EQ(ask(""), "");
        bench.advance(100ms);
        EXPECT_EQ(bench.transceiver.ask("TX;"), *between ? "TX1;" : "TX0;");
        bench.controller.virtualPort.lineTaken = [] { return false; };
        bench.advance(100ms);
        EXPECT_EQ(ask(""), "?;FA014250000;FA014250000;");
        settle();
        EXPECT_EQ(bench.transceiver.ask("TX;"), "TX0;");
    }
    bench.display.openCloseButton.performClick();
    // What it sent before it left is read first: it leaves nothing keyed.
    bench.display.openCloseButton.performClick();
    settle();
    port().toPort = "TX1;";
    port().leave();
    bench.advance(1s);
    EXPECT_EQ(bench.transceiver.ask("TX;"), "TX0;");
}

TEST_F(VirtualPortTest, OffersItsPathOnlyWhenToldAndSaysWhyItCannot) {
    TestBench untold;
    EXPECT_FALSE(untold.around.terminal.offered);
    EXPECT_FALSE(untold.display.virtualPortCopyButton.enabled());
    EXPECT_THAT(bench.display.virtualPortField.stringValue(), HasSubstr("/run/user/1000/corvane/radio"));
    EXPECT_THAT(bench.display.virtualPortStateField.stringValue(), HasSubstr("since 00:00:00 UTC"));
    bench.display.virtualPortCopyButton.performClick();
    EXPECT_EQ(bench.around.clipboard.held, "/run/user/1000/corvane/radio");
    EXPECT_EQ(bench.around.settings.values.at("virtualPort"), "1");
    bench.display.virtualPortSwitch.performClick();
    EXPECT_FALSE(port().offered);
    port().result = PseudoTerminal::Opening::taken;
    bench.display.virtualPortSwitch.performClick();
    EXPECT_THAT(bench.display.virtualPortNoticeField.stringValue(), HasSubstr("Another Corvane"));
}

}  // namespace
}  // namespace corvane
