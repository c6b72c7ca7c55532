#include "qt/platform/simulated_port.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "event_loop.h"
#include "recording_delegate.h"
#include "simulator/simulated_transceiver.h"

namespace corvane {
namespace {

using Reports = std::vector<std::string>;

struct SimulatedPortTest : testing::Test {
    RecordingDelegate delegate;
    std::shared_ptr<SimulatedPort> port = std::make_shared<SimulatedPort>();

    SimulatedPortTest() { port->setDelegate(&delegate); }

    bool reported(std::size_t count) {
        return eventually([&] { return delegate.reports.size() >= count; });
    }
    void open() {
        port->open();
        ASSERT_TRUE(reported(1));
        delegate.reports.clear();
    }
};

TEST_F(SimulatedPortTest, OpensLaterAndClosesAtOnce) {
    port->sendData("FA;");
    port->open();
    port->open();
    EXPECT_FALSE(port->isOpen());
    ASSERT_TRUE(reported(1));
    EXPECT_TRUE(port->isOpen());
    port->close();
    port->close();
    EXPECT_EQ(delegate.reports, (Reports{"opened", "closed"}));
    port->open();
    port->close();  // before it was open
    QCoreApplication::processEvents();
    EXPECT_EQ(delegate.reports.size(), 2U);
}

TEST_F(SimulatedPortTest, AnswersInWholeResponsesAlsoWhenTheyAreCut) {
    open();
    port->sendData("FA0142");
    port->sendData("51000;FA;MD0;");
    ASSERT_TRUE(reported(2));
    EXPECT_EQ(delegate.reports[0], "FA014251000;");
    EXPECT_EQ(delegate.reports[1].substr(0, 3), "MD0");
    port->operate([](simulator::SimulatedTransceiver& radio) { radio.setFaults({.cutAnswers = true}); });
    port->sendData("FA;");
    ASSERT_TRUE(reported(3));
    EXPECT_EQ(delegate.reports[2], "FA014251000;");
}

TEST_F(SimulatedPortTest, AHandOnTheKnobIsReportedAndTheStateOutlivesClosing) {
    open();
    port->sendData("FA014250000;AI1;");
    port->operate([](simulator::SimulatedTransceiver& radio) { EXPECT_TRUE(radio.tune(14260000)); });
    ASSERT_TRUE(eventually([&] {
        return std::find(delegate.reports.begin(), delegate.reports.end(), "FA014260000;") != delegate.reports.end();
    }));
    port->sendData("AI0;");
    port->close();
    delegate.reports.clear();
    open();
    port->sendData("FA;");
    ASSERT_TRUE(reported(1));
    EXPECT_EQ(delegate.reports[0], "FA014260000;");
}

TEST_F(SimulatedPortTest, TheDelegateMaySendAndLetGoFromInsideAReport) {
    open();
    std::weak_ptr<SimulatedPort> watched = port;
    delegate.onReport = [&](ORSSerialPort& reporting, const std::string& what) {
        if (what.substr(0, 2) == "FA") return reporting.sendData("MD0;");
        reporting.setDelegate(nullptr);
        port.reset();
    };
    port->sendData("FA;");
    EXPECT_TRUE(eventually([&] { return watched.expired(); }));
    EXPECT_EQ(delegate.reports.size(), 2U);
}

}  // namespace
}  // namespace corvane
