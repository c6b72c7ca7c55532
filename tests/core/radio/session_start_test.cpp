#include <gmock/gmock.h>

#include <algorithm>

#include "tests/support/test_bench.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;
using testing::IsEmpty;

const std::string slots = "VS1;MC002;MC;MW002;VM;VS0;MC001;MC;MW001;VM;";
const std::string synchronisation =
    "PS;AI1;AI;AG0;VS1;VS0;IF;OI;VS;SV;MD0;NB0;NR0;PC;FA;FB;VS0;BC0;BI;PA0;BP00;CO00;GT0;RA0;RF0;SF0;SF1;"
    "SS00;SS01;SS02;SS03;SS04;SS05;SS06;MS;EX040101;SV;";

// What stands at a moment: the writes since the last look, the page in front and the settings pages asked for.
using Moment = std::tuple<Writes, int, std::string>;

Moment look(TestBench& bench) {
    std::string pages;
    for (int page = 0; page < 4; ++page)
        if (bench.display.settingsTab.viewRequested(page)) pages += static_cast<char>('0' + page);
    return {bench.takeWrites(), bench.display.mainTab.indexOfSelectedItem(), pages};
}

TEST(SessionStart, RunsItsStepsAtTheirTimesWithoutAnyAnswer) {
    const struct {
        Scheduler::Duration time;
        Moment moment;
    } timeline[] = {{0ms, {{}, 0, ""}},
                    {4999ms, {{}, 0, ""}},
                    {5000ms, {{"MR001;"}, 0, ""}},
                    {6999ms, {{}, 0, ""}},
                    {7000ms, {{slots}, 0, ""}},
                    {7999ms, {{}, 0, ""}},
                    {8000ms, {{synchronisation}, 1, ""}},
                    {8999ms, {{}, 1, ""}},
                    {9000ms, {{}, 1, "0"}},
                    {10000ms, {{}, 1, "01"}},
                    {11000ms, {{}, 1, "012"}},
                    {12000ms, {{}, 1, "0123"}},
                    {600s, {{}, 1, "0123"}}};
    TestBench bench;
    EXPECT_EQ(bench.display.vqMemAButton.title(), "");
    putChannel(bench.controller.memories, 41, {"014250000", "2", "20M"});
    Scheduler::Duration now{0};
    for (const auto& [time, moment] : timeline) {
        bench.advance(time - std::exchange(now, time));
        EXPECT_EQ(look(bench), moment) << time.count() << " ms";
    }
    EXPECT_THAT(bench.controller.memories.vqMemArray(), testing::Each(MemoryChannel{})) << "the read began afresh";
}

TEST(SessionStart, APortThatClosesOrLeavesTakesItsPendingStepsWithIt) {
    const auto close = [](TestBench& bench) { bench.display.openCloseButton.performClick(); };
    const auto unplug = [](TestBench& bench) { bench.port->unplug(); };
    const auto none = [](TestBench& bench) { bench.controller.setSerialPort(nullptr); };
    for (const std::function<void(TestBench&)>& end : {std::function<void(TestBench&)>(close), {unplug}, {none}}) {
        TestBench bench;
        bench.advance(6s);
        end(bench);
        bench.forgetWhatHappened();
        bench.advance(60s);
        EXPECT_EQ(look(bench), (Moment{{}, 0, ""}));
    }
}

TEST(SessionStart, ReopeningRunsTheStepsOnceFromTheStart) {
    TestBench bench;
    bench.advance(4s);
    bench.display.openCloseButton.performClick();
    bench.display.openCloseButton.performClick();
    bench.forgetWhatHappened();
    bench.advance(4999ms);
    EXPECT_EQ(look(bench), (Moment{{}, 0, ""}));
    bench.advance(60s);
    EXPECT_EQ(look(bench), (Moment{{"MR001;", slots, synchronisation}, 1, "0123"}));
}

TEST(SessionStart, StepsLeftOverFromAClosedProgramDoNothing) {
    Surroundings around;
    const auto port = std::make_shared<FakeSerialPort>("ttyUSB0");
    around.portManager.ports = {port};
    around.portManager.suggested = port;
    auto controller = std::make_unique<SerialPortDemoController>(around.platform(), ServiceHosts{});
    controller->awakeFromNib();
    controller->display.openCloseButton.performClick();
    ASSERT_TRUE(port->isOpen());
    controller.reset();
    EXPECT_FALSE(port->isOpen());
    port->open();
    port->receive("FA014250000;");
    around.scheduler.advance(60s);
    EXPECT_THAT(port->written, IsEmpty());
}

// Names what the display shows as last known.
ControlNames lastKnown(const Display& display) {
    ControlNames names;
    for (const Control* control : display.controls())
        if (control->lastKnown()) names.insert(control->objectName());
    return names;
}

TEST(SessionStart, ReportedValuesAreLastKnownAfterTheClosingUntilTheyAreReportedAgain) {
    TestBench bench;
    bench.receive("FA014250000;MD02;RM1100000;GT04;");
    const ControlNames reported{"AGCPopUpButton", "licenseClassButton", "modeField", "modesPopUpButton",
                                "sMeter",         "vqFreqAButton"};
    EXPECT_EQ(lastKnown(bench.display), ControlNames{});
    for (const bool unplugged : {false, true}) {
        if (unplugged)
            bench.port->unplug();
        else
            bench.display.openCloseButton.performClick();
        EXPECT_TRUE(std::ranges::includes(lastKnown(bench.display), reported));
        EXPECT_FALSE(lastKnown(bench.display).contains("vqFreqBButton")) << "never reported";
        bench.display.vqFreqAButton.setTitle("14.250.000");
        bench.controller.setSerialPort(bench.port);
        bench.display.openCloseButton.performClick();
        EXPECT_TRUE(lastKnown(bench.display).contains("vqFreqAButton")) << "the port is open, but nothing has come";
        bench.takeChanges();
        bench.receive("FA014250000;");
        EXPECT_TRUE(bench.takeChanges().contains("vqFreqAButton"));
        EXPECT_FALSE(lastKnown(bench.display).contains("vqFreqAButton"));
        EXPECT_FALSE(lastKnown(bench.display).contains("m20Button"));
        EXPECT_TRUE(lastKnown(bench.display).contains("modeField"));
        bench.receive("MD02;RM1100000;GT04;");
        EXPECT_FALSE(lastKnown(bench.display).contains("modeField"));
    }
}

}  // namespace
}  // namespace corvane
