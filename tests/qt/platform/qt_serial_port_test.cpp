#include "qt/platform/qt_serial_port.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <ctime>
#include <fstream>
#include <memory>
#include <optional>

#include "event_loop.h"
#include "qt/platform/open_failure.h"
#include "recording_delegate.h"
#include "simulator/pseudo_terminal.h"

namespace corvane {
namespace {

using Reports = std::vector<std::string>;

struct QtSerialPortTest : testing::Test {
    std::optional<simulator::PseudoTerminal> line{std::in_place};
    RecordingDelegate delegate;
    std::shared_ptr<QtSerialPort> port = std::make_shared<QtSerialPort>("radio", "A radio", line->path());

    QtSerialPortTest() { port->setDelegate(&delegate); }

    bool reported(std::size_t count) {
        return eventually([&] { return delegate.reports.size() >= count; });
    }
};

TEST_F(QtSerialPortTest, OpensWithTheLineSettingsAndSendsInOrder) {
    port->setBaudRate(19200);
    port->setNumberOfStopBits(2);
    port->sendData("dropped;");
    port->open();
    ASSERT_EQ(delegate.reports, Reports{"opened"});
    EXPECT_TRUE(port->isOpen());

    const int descriptor = ::open(line->path().c_str(), O_RDWR | O_NOCTTY);
    termios settings{};
    ASSERT_EQ(::tcgetattr(descriptor, &settings), 0);
    ::close(descriptor);
    EXPECT_EQ(::cfgetospeed(&settings), speed_t{B19200});
    EXPECT_NE(settings.c_cflag & CSTOPB, 0U);
    EXPECT_NE(settings.c_cflag & CRTSCTS, 0U);
    EXPECT_EQ(settings.c_cflag & PARENB, 0U);

    port->sendData("FA;");
    port->sendData("MD0;");
    std::string sent;
    EXPECT_TRUE(eventually([&] { return (sent += line->read()).size() >= 7; }));
    EXPECT_EQ(sent, "FA;MD0;");
    port->open();  // has no effect
    EXPECT_EQ(delegate.reports, Reports{"opened"});
}

TEST_F(QtSerialPortTest, HandsOverWholeResponsesAndATailAfterItsPatience) {
    port->open();
    line->write("FA0142");
    runEventLoop(std::chrono::milliseconds(20));
    EXPECT_EQ(delegate.reports, Reports{"opened"});
    line->write("50000;MD02;");
    ASSERT_TRUE(reported(3));
    EXPECT_EQ(delegate.reports, (Reports{"opened", "FA014250000;", "MD02;"}));
    QElapsedTimer clock;
    clock.start();
    line->write("SM0");
    ASSERT_TRUE(reported(4));
    EXPECT_EQ(delegate.reports.back(), "SM0");
    EXPECT_GE(clock.elapsed(), 90);
}

TEST_F(QtSerialPortTest, WhatWasSentBeforeClosingStillGoesOut) {
    port->open();
    port->sendData("AI0;");
    port->close();
    EXPECT_FALSE(port->isOpen());
    EXPECT_EQ(line->read(), "AI0;");
    port->close();
    port->sendData("FA;");
    EXPECT_EQ(delegate.reports, (Reports{"opened", "closed"}));
    port->open();
    EXPECT_EQ(delegate.reports.back(), "opened");
    EXPECT_EQ(line->read(), "");
}

TEST_F(QtSerialPortTest, ATailDoesNotSurviveClosing) {
    port->open();
    line->write("FA0142");
    runEventLoop(std::chrono::milliseconds(20));
    port->close();
    port->open();
    line->write("MD02;");
    ASSERT_TRUE(reported(4));
    EXPECT_EQ(delegate.reports, (Reports{"opened", "closed", "opened", "MD02;"}));
}

TEST_F(QtSerialPortTest, UnpluggedReportsOneRemovalWithThePortClosedAndBurnsNoTime) {
    port->open();
    line.reset();
    ASSERT_TRUE(reported(2));
    const std::clock_t before = std::clock();
    runEventLoop(std::chrono::milliseconds(300));
    EXPECT_LT(static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC, 0.1);
    port->deviceLeft();
    port->sendData("FA;");
    EXPECT_EQ(delegate.reports, (Reports{"opened", "removed"}));
    EXPECT_TRUE(delegate.errors.empty());
}

TEST_F(QtSerialPortTest, UnpluggedIsNoticedWhileSendingToo) {
    port->open();
    line.reset();
    port->sendData("FA;");
    port->sendData("FB;");
    ASSERT_TRUE(reported(2));
    QCoreApplication::processEvents();
    EXPECT_EQ(delegate.reports, (Reports{"opened", "removed"}));
}

// A line whose device takes nothing for a while, as with RTS/CTS held back.
class HeldLine {
public:
    explicit HeldLine(const std::string& path) : descriptor_(::open(path.c_str(), O_RDWR | O_NOCTTY)) { hold(TCOOFF); }
    ~HeldLine() {
        release();
        ::close(descriptor_);
    }
    void release() { hold(TCOON); }

private:
    void hold(int action) { EXPECT_EQ(::tcflow(descriptor_, action), 0); }
    const int descriptor_;
};

TEST_F(QtSerialPortTest, BytesWaitWhileTheDeviceTakesNoneAndArriveInOrder) {
    port->open();
    HeldLine held(line->path());
    std::string sent;
    for (int command = 0; command < 200; ++command) {
        sent += "MW" + std::to_string(1000 + command) + "014250000+000000210000;";
        port->sendData(std::string_view(sent).substr(sent.size() - 29));
    }
    ASSERT_TRUE(reported(2));
    EXPECT_EQ(delegate.reports, (Reports{"opened", "stalled"}));
    EXPECT_EQ(port->waitingBytes(), sent.size());
    held.release();
    std::string arrived;
    EXPECT_TRUE(eventually([&] { return (arrived += line->read()).size() >= sent.size(); }));
    EXPECT_EQ(arrived, sent);
    ASSERT_TRUE(reported(3));
    EXPECT_EQ(delegate.reports, (Reports{"opened", "stalled", "takes bytes again"}));
    EXPECT_EQ(port->waitingBytes(), 0U);
}

TEST_F(QtSerialPortTest, AStalledPortClosesAtOnceHoldsABoundAndKnowsWhatItNeverSent) {
    port->open();
    const HeldLine held(line->path());
    const std::string command = "FA014250000;";
    for (int count = 0; count < 10'000; ++count) port->sendData(command);
    EXPECT_LE(port->waitingBytes(), 64U * 1024);
    const std::size_t waiting = port->waitingBytes();
    EXPECT_EQ(waiting % command.size(), 0U) << "no command is cut";
    ASSERT_TRUE(reported(2));
    QElapsedTimer clock;
    clock.start();
    port->close();
    EXPECT_LT(clock.elapsed(), 50);
    EXPECT_EQ(delegate.reports, (Reports{"opened", "stalled", "closed"}));
    EXPECT_EQ(port->waitingBytes(), waiting);
}

TEST_F(QtSerialPortTest, ADeviceThatLeftTheListIsReportedOnce) {
    port->open();
    port->deviceLeft();
    port->deviceLeft();
    EXPECT_EQ(delegate.reports, (Reports{"opened", "removed"}));
}

TEST_F(QtSerialPortTest, APortThatIsHeldIsBusy) {
    QtSerialPort holder("holder", "", line->path());
    holder.open();
    ASSERT_TRUE(holder.isOpen());
    port->open();
    EXPECT_FALSE(port->isOpen());
    ASSERT_EQ(delegate.errors.size(), 1U);
    EXPECT_EQ(delegate.errors[0].kind, SerialPortErrorKind::busy);
    EXPECT_EQ(delegate.errors[0].text, "Device or resource busy");
    holder.close();
    port->open();
    EXPECT_TRUE(port->isOpen());
}

TEST_F(QtSerialPortTest, TheDelegateMayCloseChangeAndLetGoFromInsideAReport) {
    delegate.onReport = [&](ORSSerialPort& reporting, const std::string& what) {
        if (what == "FA;") reporting.close();
    };
    port->open();
    line->write("FA;FB;MD");
    ASSERT_TRUE(reported(3));
    runEventLoop(std::chrono::milliseconds(150));
    EXPECT_EQ(delegate.reports, (Reports{"opened", "FA;", "closed"}));

    delegate.reports.clear();
    std::weak_ptr<QtSerialPort> watched = port;
    delegate.onReport = [&](ORSSerialPort& reporting, const std::string& what) {
        if (what != "FB;") return;
        reporting.setDelegate(nullptr);
        port.reset();
    };
    port->open();
    line->write("FB;MD0;");
    ASSERT_TRUE(reported(2));
    EXPECT_TRUE(eventually([&] { return watched.expired(); }));
    EXPECT_EQ(delegate.reports, (Reports{"opened", "FB;"}));
}

TEST_F(QtSerialPortTest, TheDelegateMayLetGoOfAPortThatWasRemoved) {
    std::weak_ptr<QtSerialPort> watched = port;
    delegate.onReport = [&](ORSSerialPort&, const std::string& what) {
        if (what == "removed") port.reset();
    };
    port->open();
    line.reset();
    EXPECT_TRUE(eventually([&] { return watched.expired(); }));
    EXPECT_EQ(delegate.reports, (Reports{"opened", "removed"}));
}

// The superuser may open everything, so this test runs as the user "nobody" for a moment.
class AsNobody {
public:
    AsNobody() { changed_ = ::geteuid() == 0 && ::setresuid(65534, 65534, 0) == 0; }
    ~AsNobody() {
        if (changed_ && ::setresuid(0, 0, 0) != 0) ADD_FAILURE() << "the superuser did not come back";
    }

private:
    bool changed_ = false;
};

TEST(OpenFailureTest, TellsNotAllowedFromHeldBySomebodyElse) {
    const QTemporaryDir folder;
    ASSERT_EQ(::chmod(folder.path().toStdString().c_str(), 0755), 0);
    const std::string path = folder.filePath("ttyUSB0").toStdString();
    QFile device(QString::fromStdString(path));
    ASSERT_TRUE(device.open(QIODevice::WriteOnly));
    const auto failure = [&](QSerialPort::SerialPortError error) {
        return openFailure(error, path, "Qt's words", {folder.path().toStdString()});
    };

    EXPECT_EQ(failure(QSerialPort::PermissionError).kind, SerialPortErrorKind::busy);
    std::string lockName = path;
    std::ranges::replace(lockName, '/', '_');
    const std::string lock = folder.path().toStdString() + "/LCK.." + lockName;
    for (const auto& [process, kind] : {std::pair{std::to_string(::getppid()), SerialPortErrorKind::busy},
                                        {"   1\n", SerialPortErrorKind::busy},
                                        {"no number", SerialPortErrorKind::busy},
                                        {"2147483646\n", SerialPortErrorKind::staleLock}}) {
        std::ofstream(lock) << process;
        const SerialPortError error = failure(QSerialPort::PermissionError);
        EXPECT_EQ(error.kind, kind) << process;
        EXPECT_EQ(error.lock, kind == SerialPortErrorKind::staleLock ? lock : "");
    }
    ASSERT_EQ(::chmod(path.c_str(), 0), 0);
    {
        const AsNobody nobody;
        const SerialPortError error = failure(QSerialPort::PermissionError);
        EXPECT_EQ(error.kind, SerialPortErrorKind::permission);
        EXPECT_EQ(error.text, "Permission denied");
        EXPECT_EQ(error.group, "") << "no group may open it";
        EXPECT_FALSE(error.owner.empty());
    }
    const gid_t dialout = 20;
    if (::geteuid() == 0) {
        ASSERT_EQ(::chown(path.c_str(), 0, dialout), 0);
        ASSERT_EQ(::chmod(path.c_str(), 0660), 0);
        EXPECT_EQ(failure(QSerialPort::UnsupportedOperationError).group, "dialout");
        ASSERT_EQ(::chown(path.c_str(), 0, 0), 0);
        EXPECT_EQ(failure(QSerialPort::UnsupportedOperationError).group, "") << "nobody should join the superuser's";
        ASSERT_EQ(::chmod(path.c_str(), 0), 0);
    }
    EXPECT_EQ(failure(QSerialPort::UnsupportedOperationError).text, "Qt's words");
    ASSERT_TRUE(device.remove());
    EXPECT_EQ(failure(QSerialPort::PermissionError).kind, SerialPortErrorKind::notFound);
    EXPECT_EQ(failure(QSerialPort::DeviceNotFoundError).kind, SerialPortErrorKind::notFound);
}

}  // namespace
}  // namespace corvane
