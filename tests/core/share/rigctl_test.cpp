// Other programs at the transceiver, from their requests to the line and back.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "tests/support/radio_bench.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::string_view notConnected = "RPRT -6\n";

class RigctlTest : public testing::Test {
protected:
    RigctlTest() {
        bench.display.shareSwitch.performClick();
        door().connect(program);
        ask("f\nm\ns\nt\nv\ni\nx\nl STRENGTH\nl PREAMP\nl NR\nl RF\n");
        bench.advance(1s);
        bench.takeWrites();
    }
    ~RigctlTest() override { bench.controller.link.setSerialPort(nullptr); }

    FakeLoopbackServer& door() { return bench.around.loopback; }
    // What a program is answered, once the transceiver has answered, too.
    std::string ask(std::string_view text) { return ask(program, text); }
    std::string ask(FakeProgram& from, std::string_view text) {
        std::string answer = from.ask(text);
        for (int turn = 0; turn < 20; ++turn) pass(0ms);
        return answer + from.take();
    }
    // Time in which the transceiver answers.
    void pass(Scheduler::Duration time) {
        do {
            bench.advance(std::min<Scheduler::Duration>(time, 50ms));
            bench.settle();
            time -= 50ms;
        } while (time > 0ms);
    }
    void permitTransmitting() { bench.display.shareTransmitSwitch.performClick(); }
    void silence(bool silent) {
        simulator::Faults faults;
        faults.silent = silent;
        bench.transceiver.setFaults(faults);
    }
    // What stays when a setting has been reported, and the time for older reports is over.
    void settle() {
        pass(1s);
        bench.takeWrites();
    }

    // Before the bench, whose controller ends the connections.
    FakeProgram program, second;
    RadioBench bench;
};

TEST_F(RigctlTest, AnswersWhatIsKnownWithoutAByteOnTheLine) {
    struct Row {
        std::string_view request;
        std::string_view answer;
    };
    const std::vector<Row> rows{
        {"f\n", "14250000\n"},
        {"\\get_freq\r\n", "14250000\n"},
        {"m\n", "USB\n2400\n"},
        {"v\n", "VFOA\n"},
        {"t\n", "0\n"},
        {"s\n", "0\nVFOA\n"},
        {"fmvts\n", "14250000\nUSB\n2400\nVFOA\n0\n0\nVFOA\n"},
        {"\n\nf f\n # f\n", "14250000\n14250000\n"},
        {"+f\n", "get_freq:\nFrequency: 14250000\nRPRT 0\n"},
        {"+f +m\n", "get_freq:\nFrequency: 14250000\nRPRT 0\nget_mode:\nMode: USB\nPassband: 2400\nRPRT 0\n"},
        {";m\n", "get_mode:;Mode: USB;Passband: 2400;RPRT 0\n"},
        {"f;m|v\n", "14250000\nget_mode:;Mode: USB;Passband: 2400;RPRT 0\nget_vfo:|VFO: VFOA|RPRT 0\n"},
        {"|\\get_vfo_info VFOA\n",
         "get_vfo_info: VFOA|Freq: 14250000|Mode: USB|Width: 2400|Split: 0|SatMode: 0|RPRT 0\n"},
        {"+\\chk_vfo\n", "ChkVFO: 0\n"},
        {"\\chk_vfo\n", "0\n"},
        {"\\get_powerstat\n", "1\n"},
        {"\\get_lock_mode\n", "0\n"},
        {"l AF\n", "0.313725\n"},
        {"l RFPOWER\n", "0.500000\n"},
        {"l AGC\n", "6\n"},
        {"l PREAMP\n", "10\n"},
        {"l METER\n", "1\n"},
        {"u NB\n", "0\n"},
        {"u FBKIN\n", "1\n"},
        {"+l NOSUCH\n", "get_level: NOSUCH\nRPRT -1\n"},
        {"l KEYSPD\n", "RPRT -11\n"},
        {"l ?\n", "PREAMP ATT AF RF NR RFPOWER AGC METER STRENGTH NB \n"},
        {"\\power2mW 0.5 14074000 USB\n", "50000\n"},
        // Refused: nothing is set. What follows in the line is not taken for a command.
        {"F14080000\n", "RPRT -1\n"},
        {"F -5\n", "RPRT -1\n"},
        {"F 29999\n", "RPRT -1\n"},
        {"F 75000001\n", "RPRT -1\n"},
        {"F\n", "RPRT -1\n"},
        {"F VFOA 14080000\n", "RPRT -1\n"},
        {"M XYZ 0\n", "RPRT -1\n"},
        {"M usb 0\n", "RPRT -1\n"},
        {"M USB x\n", "RPRT -1\n"},
        {"T1t\n", "RPRT -1\n"},
        {"T 9\n", "RPRT -1\n"},
        {"V vfoa\n", "RPRT -1\n"},
        {"L AF\n", "RPRT -1\n"},
        {"L STRENGTH 3\n", "RPRT -11\n"},
        {"E 100\n", "RPRT -1\n"},
        {"hello\n", "RPRT -11\n"},
        {"\\GET_FREQ\n", "RPRT -11\n"},
        {"\\stop_morse\n", "RPRT -11\n"},
        {"w FA;\n", "RPRT -11\n"},
        {"\xc3\xa9\xff\x01\n", "RPRT -11\n"},
    };
    for (const Row& row : rows) EXPECT_EQ(ask(row.request), row.answer) << row.request;
    EXPECT_THAT(bench.takeWrites(), IsEmpty());

    // Cut anywhere; a line without an end is bounded.
    EXPECT_EQ(program.ask("\\get_f"), "");
    EXPECT_EQ(program.ask("req"), "");
    EXPECT_EQ(program.ask("\nf"), "14250000\n");
    EXPECT_EQ(ask("\n" + std::string(100'000, 'x')), "14250000\nRPRT -1\n");
    EXPECT_EQ(ask("x\nf\n"), "14250000\n");
    ask("q\n");
    EXPECT_FALSE(program.connected);
    // A page in a web browser.
    for (const std::string& line :
         std::vector<std::string>{"POST / HTTP/1.1\r\n", "GET /?" + std::string(1'100, 'a') + " HTTP/1.1\r\n",
                                  "POST /" + std::string(990, 'a') + '\n', std::string(2'000, 'a') + '\n'}) {
        door().connect(program);
        EXPECT_EQ(ask(line + "Host: x\r\n\r\nF 7000000\n"), "") << line;
        EXPECT_FALSE(program.connected) << line;
    }
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
}

TEST_F(RigctlTest, SetsThroughTheLineAndReadsBackAtOnce) {
    struct Row {
        std::string_view request;
        std::vector<std::string> written;
        std::string_view question;
        std::string_view answer;  // at once, and when the transceiver has reported
    };
    const std::vector<Row> rows{
        {"F 14081000.700000", {"FA014081000;"}, "f", "14081000\n"},
        {"F   1.4e7", {"FA014000000;"}, "f", "14000000\n"},
        {"M CW 0", {"MD03;"}, "m", "CW\n500\n"},
        {"M PKTUSB 2800", {"MD0C;"}, "m", "PKTUSB\n3000\n"},
        {"M RTTY -1", {"MD06;"}, "m", "RTTY\n500\n"},
        {"I 7074000", {"FB007074000;", "VS;"}, "i", "7074000\n"},
        {"X LSB 0", {"VS1;", "MD01;", "VS0;", "IF;", "MD0;"}, "x", "LSB\n2400\n"},
        {"S 1 VFOB", {"ST1;"}, "s", "1\nVFOB\n"},
        {"S 0 VFOA", {"ST0;"}, "s", "0\nVFOA\n"},
        {"L AF 0.5", {"AG0128;"}, "l AF", "0.501961\n"},
        {"L RFPOWER 0.35", {"PC035;"}, "l RFPOWER", "0.350000\n"},
        {"L RFPOWER 0", {"PC005;"}, "l RFPOWER", "0.050000\n"},
        {"L AGC 5", {"GT02;"}, "l AGC", "5\n"},
        {"L ATT 11", {"RA02;"}, "l ATT", "12\n"},
        {"L PREAMP 20", {"PA02;"}, "l PREAMP", "20\n"},
        {"L NR 1", {"RL015;"}, "l NR", "1.000000\n"},
        {"L METER 4", {"MS20;"}, "l METER", "4\n"},
        {"U NB 1", {"NB01;"}, "u NB", "1\n"},
        {"U MN 1", {"BP00001;"}, "u MN", "1\n"},
        {"V VFOB", {"VS1;"}, "v", "VFOB\n"},
        {"F 7100000", {"FB007100000;"}, "f", "7100000\n"},
        {"V VFOA", {"VS0;"}, "v", "VFOA\n"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(program.ask(std::string(row.request) + "\n"), "RPRT 0\n") << row.request;
        EXPECT_EQ(bench.takeWrites(), row.written) << row.request;
        EXPECT_EQ(ask(std::string(row.question) + "\n"), row.answer) << row.request;
        settle();
        EXPECT_EQ(ask(std::string(row.question) + "\n"), row.answer) << row.request << " was reported otherwise";
    }
    EXPECT_EQ(bench.radio.vqAorB, "A") << "the window must still show the side in use";

    // What the transceiver refuses is read back as it is.
    EXPECT_EQ(ask("E 98\n"), "RPRT 0\n");
    settle();
    EXPECT_NE(ask("e\n"), "98\n");
}

TEST_F(RigctlTest, KeepsASettingAgainstOlderReports) {
    EXPECT_EQ(program.ask("F 14090000\nf\n"), "RPRT 0\n14090000\n");
    bench.receive("FA014250010;");
    EXPECT_EQ(program.ask("f\n"), "14090000\n") << "the report is older than the setting";
    bench.receive("FA014090000;");
    bench.receive("FA014090010;");
    EXPECT_EQ(program.ask("f\n"), "14090010\n") << "the knob was turned after the setting";

    program.ask("F 14095000\n");
    bench.receive("FA014090020;");
    bench.advance(350ms);
    EXPECT_EQ(program.ask("f\n"), "14090020\n") << "never taken by the transceiver";
}

TEST_F(RigctlTest, SendsTheLastValueOfAProgramThatSetsFasterThanTheLineCarries) {
    std::string flood;
    for (int hertz = 14'000'000; hertz < 14'001'000; ++hertz) flood += "F " + std::to_string(hertz) + "\n";
    program.ask(flood);
    bench.advance(40ms);
    EXPECT_EQ(program.ask("f\n").substr(0, 7), "RPRT 0\n");
    pass(1s);
    const Writes writes = bench.takeWrites();
    EXPECT_LT(std::ranges::count_if(writes, [](const auto& write) { return write.starts_with("FA"); }), 5);
    EXPECT_EQ(bench.transceiver.ask("FA;"), "FA014000999;");

    // A full driver gets no more: the last value leaves when it takes bytes again.
    bench.port->waiting = 500;
    ask("F 14100000\nF 14200000\nf\n");
    bench.advance(1s);
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
    bench.port->waiting = 0;
    bench.advance(100ms);
    EXPECT_THAT(bench.takeWrites(), ElementsAre("FA014200000;"));
}

TEST_F(RigctlTest, AsksOnceForWhatIsNotKnownAndSaysWhenNothingComes) {
    EXPECT_EQ(program.ask("l NB\n"), "");
    door().connect(second);
    EXPECT_EQ(second.ask("l NB\n"), "");
    EXPECT_THAT(bench.takeWrites(), ElementsAre("NL0;"));
    bench.settle();
    EXPECT_EQ(program.take() + second.take(), "0.500000\n0.500000\n");

    silence(true);
    EXPECT_EQ(program.ask("j\nl NB\n"), "0\n0.500000\n") << "what is known needs no question";
    bench.controller.sharedTransceiver.forget(Item::blankerLevel);
    EXPECT_EQ(program.ask("l NB\n"), "");
    bench.advance(499ms);
    EXPECT_EQ(program.take(), "RPRT -5\n");
    EXPECT_EQ(program.ask("f\n"), "RPRT -5\n") << "nothing is made up of a transceiver that does not answer";
    silence(false);
    bench.transceiver.tune(7'000'000);
    bench.advance(1s);
    ask("f\n");
    EXPECT_EQ(ask("f\n"), "7000000\n");

    bench.display.openCloseButton.performClick();
    EXPECT_EQ(ask("f\n"), notConnected);
    EXPECT_EQ(ask("F 14000000\n"), notConnected);
    EXPECT_EQ(ask("\\get_powerstat\n"), notConnected);
    EXPECT_EQ(ask("\\chk_vfo\n"), "0\n");
    bench.display.openCloseButton.performClick();
    EXPECT_EQ(ask("f\n"), "7000000\n") << "on the same connection";
    bench.port->unplug();
    EXPECT_EQ(ask("f\n"), notConnected);
}

TEST_F(RigctlTest, TransmitsOnlyWithTheOperatorsWord) {
    for (const char* request : {"T 1\n", "T 2\n", "T 3\n", "b CQ\n", "G TUNE\n", "\\set_powerstat 0\n"})
        EXPECT_EQ(ask(request), "RPRT -9\n") << request;
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
    EXPECT_THAT(bench.display.shareNoticeField.stringValue(),
                testing::AllOf(HasSubstr("port 50000"), HasSubstr("Other programs may transmit")));
    EXPECT_EQ(ask("T 0\n"), "RPRT 0\n");

    permitTransmitting();
    EXPECT_EQ(bench.display.shareNoticeField.stringValue(), "");
    EXPECT_EQ(program.ask("F 14070000\nF 14074000\nT 1\nt\n"), "RPRT 0\nRPRT 0\nRPRT 0\n1\n");
    bench.advance(60ms);
    EXPECT_EQ(bench.takeWrites().back(), "TX1;") << "never before the frequency";
    settle();
    bench.advance(1s);
    EXPECT_EQ(ask("t\n"), "1\n");
    EXPECT_THAT(bench.display.shareKeyedField.stringValue(), HasSubstr("port 50000"));
    EXPECT_EQ(ask("T 0\nt\n"), "RPRT 0\n0\n");
    EXPECT_EQ(bench.transceiver.ask("TX;"), "TX0;");

    // The transceiver keyed by its own microphone is on the air, too.
    settle();
    bench.receive("TX2;");
    EXPECT_EQ(ask("t\n"), "1\n");
    bench.receive("TX0;");

    ask("M CW 0\n");
    settle();
    EXPECT_EQ(program.ask("b CQ TEST\n"), "RPRT 0\n");
    EXPECT_THAT(bench.takeWrites(), ElementsAre("KM5CQ TEST};", "KYA;", testing::StartsWith("KM5")));
    EXPECT_EQ(ask("b A;TX1\n"), "RPRT -1\n");
    EXPECT_EQ(ask("\\set_powerstat 0\n\\get_powerstat\n"), "RPRT 0\n0\n");
}

TEST_F(RigctlTest, UnkeysWhoeverCannotUnkeyItself) {
    permitTransmitting();
    const auto leave = [this] { program.leave(); };
    const auto hang = [this] { bench.advance(31s); };
    const auto forbid = [this] { permitTransmitting(); };
    const auto endSharing = [this] { bench.display.shareSwitch.performClick(); };
    const auto disconnect = [this] { bench.display.shareTable.pressCell(0, 3); };
    const auto closePort = [this] { bench.display.openCloseButton.performClick(); };
    const auto changePort = [this] { bench.controller.link.setSerialPort(nullptr); };
    const std::vector<std::function<void()>> ends{leave, hang, forbid, endSharing, disconnect, closePort, changePort};
    for (std::size_t i = 0; i < ends.size(); ++i) {
        if (!bench.controller.link.serialPort()) bench.controller.setSerialPort(bench.port);
        if (!bench.controller.link.isOpen()) bench.display.openCloseButton.performClick();
        if (!bench.display.shareSwitch.checked()) bench.display.shareSwitch.performClick();
        if (!bench.display.shareTransmitSwitch.checked()) permitTransmitting();
        if (!program.connected) door().connect(program);
        bench.settle();
        ASSERT_EQ(ask("T 1\n"), "RPRT 0\n") << i;
        bench.advance(100ms);
        ASSERT_EQ(bench.transceiver.ask("TX;"), "TX1;") << i;
        ends[i]();
        EXPECT_EQ(bench.transceiver.ask("TX;"), "TX0;") << i;
        EXPECT_FALSE(bench.controller.sharedTransceiver.keyedBy()) << i;
        settle();
    }

    // A cable that was pulled takes the command with it: it is sent as soon as there is a line again.
    bench.controller.setSerialPort(bench.port);
    bench.display.openCloseButton.performClick();
    ASSERT_EQ(ask("T 1\n"), "RPRT 0\n");
    bench.port->unplug();
    bench.takeWrites();
    bench.controller.setSerialPort(bench.port);
    bench.display.openCloseButton.performClick();
    EXPECT_THAT(bench.takeWrites(), testing::Contains("TX0;"));
}

TEST_F(RigctlTest, WhoeverKeyedStaysResponsibleWhileTheTransceiverSaysNothing) {
    permitTransmitting();
    ask("t\n");
    const auto onWrite = std::exchange(bench.port->onWrite, [](std::string_view) {});
    ASSERT_EQ(program.ask("T 1\n"), "RPRT 0\n");
    bench.receive("TX0;");  // older than the keying
    bench.advance(200ms);
    bench.receive("RM1042000;");
    EXPECT_TRUE(bench.controller.sharedTransceiver.keyedBy());
    bench.advance(2s);
    EXPECT_TRUE(bench.controller.sharedTransceiver.keyedBy());
    bench.takeWrites();
    EXPECT_EQ(program.ask("T 0\n"), "RPRT 0\n");
    EXPECT_THAT(bench.takeWrites(), ElementsAre("TX0;"));

    // A line that is stalled at its closing has not taken the command.
    bench.port->onWrite = onWrite;
    bench.receive("TX0;");
    ASSERT_EQ(ask("T 1\n"), "RPRT 0\n");
    bench.port->waiting = 4;
    bench.display.openCloseButton.performClick();
    bench.port->waiting = 0;
    bench.takeWrites();
    bench.display.openCloseButton.performClick();
    EXPECT_THAT(bench.takeWrites(), testing::Contains("TX0;"));
}

TEST_F(RigctlTest, NothingIsAskedWhileNoProgramAsks) {
    bench.receive("PS0;");
    bench.takeWrites();
    bench.receive("PS1;");
    EXPECT_EQ(ask("f\n"), "14250000\n");
    bench.takeWrites();
    bench.controller.sendCommand("AI0;");
    bench.transceiver.tune(14'251'000);
    bench.controller.sendCommand("AI1;");
    EXPECT_THAT(bench.takeWrites(), ElementsAre("AI0;", "AI1;"));
    EXPECT_EQ(ask("f\n"), "14251000\n") << "tuned while nothing was reported";
    EXPECT_THAT(bench.takeWrites(), testing::IsSupersetOf({"AI;", "FA;"}));
    bench.advance(2s);
    bench.takeWrites();
    EXPECT_EQ(ask("f\n"), "14251000\n");
    EXPECT_THAT(bench.takeWrites(), IsEmpty());
}

TEST_F(RigctlTest, ServesManyAndKeepsEachToItself) {
    door().connect(second);
    ask(second, "V VFOB\n");
    settle();
    EXPECT_EQ(ask(second, "v\n"), "VFOB\n");
    EXPECT_EQ(ask("V VFOA\nv\n"), "RPRT 0\nVFOA\n");
    settle();
    EXPECT_EQ(ask(second, "v\n") + ask("v\n"), "VFOB\nVFOA\n");
    bench.transceiver.operate("VS1;");
    bench.settle();
    EXPECT_EQ(ask("v\n"), "VFOB\n") << "the operator has changed the VFO for all";

    std::vector<FakeProgram> many(RigctlServer::mostClients);
    for (FakeProgram& each : many) door().connect(each);
    EXPECT_EQ(std::ranges::count(many, true, &FakeProgram::connected), 14);
    EXPECT_EQ(bench.display.shareTable.rows(), 16);
    EXPECT_EQ(bench.display.shareTable.cell(1, 2), "v");

    // One that floods without reading is dropped; the others do not notice.
    program.reads = false;
    for (int i = 0; i < 100; ++i) program.toServer += std::string(1000, '1') + "\n";
    program.ask("");
    for (int i = 0; i < 200; ++i) bench.advance(0ms);
    EXPECT_LT(program.fromServer.size(), RigctlServer::mostBacklog + 8192);
    EXPECT_EQ(ask(second, "v\n"), "VFOB\n");
    bench.advance(6s);
    EXPECT_FALSE(program.connected);
    for (FakeProgram& each : many) each.leave();
    second.leave();
    EXPECT_EQ(bench.display.shareTable.rows(), 0);
}

TEST_F(RigctlTest, OpensOnlyWhenToldAndSaysWhyItCannot) {
    TestBench untold;
    EXPECT_EQ(untold.around.loopback.listening, 0);
    EXPECT_EQ(door().listening, 4532);
    bench.display.sharePortField.edit("4533");
    bench.display.sharePortField.performReturn();
    EXPECT_EQ(door().listening, 4533);
    EXPECT_THAT(bench.display.shareAddressField.stringValue(), HasSubstr("127.0.0.1:4533"));
    bench.display.sharePortField.edit("80");
    bench.display.sharePortField.performReturn();
    EXPECT_EQ(door().listening, 4533);
    EXPECT_THAT(bench.display.shareNoticeField.stringValue(), HasSubstr("1024"));
    bench.display.shareSwitch.performClick();
    EXPECT_EQ(door().listening, 0);
    EXPECT_FALSE(program.connected);
    door().result = LoopbackServer::Listening::portTaken;
    bench.display.shareSwitch.performClick();
    EXPECT_THAT(bench.display.shareNoticeField.stringValue(), HasSubstr("4533 is taken"));
}

}  // namespace
}  // namespace corvane
