// Real programs at the real server: Debian's own client, and beside it Debian's own server with its dummy transceiver.
#include "qt/platform/qt_loopback_server.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QProcess>
#include <QStandardPaths>
#include <QTcpSocket>
#include <QTemporaryDir>

#include "controller/serial_port_demo_controller.h"
#include "event_loop.h"
#include "qt/platform/qt_platform.h"

namespace corvane {
namespace {

using namespace std::chrono_literals;

// A port that nobody uses just now.
int freePort() {
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

// Sends a request and gives what comes within a second, or sooner once it is what is expected.
std::string asked(QTcpSocket& socket, const std::string& request, const std::string& expected) {
    socket.write(request.c_str());
    std::string answer;
    eventually([&] { return (answer += socket.readAll().toStdString()) == expected; }, 1s);
    return answer;
}

// Sends a request and gives what comes at once.
std::string asked(QTcpSocket& socket, const std::string& request) {
    std::string answer = asked(socket, request, {});
    eventually([&] { return !(answer += socket.readAll().toStdString()).empty(); });
    runEventLoop(20ms);
    return answer + socket.readAll().toStdString();
}

bool connected(QTcpSocket& socket, int port) {
    return eventually([&] {
        if (socket.state() == QAbstractSocket::UnconnectedState)
            socket.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(port));
        return socket.state() == QAbstractSocket::ConnectedState;
    });
}

// The program with the simulated transceiver, shared.
struct SharedStation {
    SharedStation() {
        platform.platform().settings.setText("sharePort", std::to_string(port));
        platform.platform().settings.setText("share", "1");
        controller.awakeFromNib();
        controller.setSerialPort(controller.serialPortManager.availablePorts().back());
        controller.display.openCloseButton.performClick();
    }
    QtPlatformOptions options() {
        QtPlatformOptions result;
        result.settingsPath = folder.filePath("corvane.ini");
        result.dataPath = folder.path();
        return result;
    }
    // What Debian's client prints.
    std::string rigctl(const QStringList& commands) const {
        QProcess client;
        client.start("rigctl", QStringList{"-m", "2", "-r", "127.0.0.1:" + QString::number(port)} + commands);
        eventually([&] { return client.state() == QProcess::NotRunning; }, 10s);
        return client.readAllStandardOutput().toStdString();
    }

    QTemporaryDir folder;
    int port = freePort();
    QtPlatform platform{options()};
    ServiceHosts hosts = ServiceHosts::from("http://127.0.0.1:9");
    SerialPortDemoController controller{platform.platform(), hosts};
};

TEST(QtLoopbackServerTest, ServesDebiansClient) {
    if (QStandardPaths::findExecutable("rigctl").isEmpty()) GTEST_SKIP() << "libhamlib-utils is not installed";
    SharedStation station;
    EXPECT_EQ(station.rigctl({"f", "m", "v", "t", "s"}), "14250000\nUSB\n2400\nVFOA\n0\n0\nVFOA\n");
    EXPECT_EQ(station.rigctl({"F", "14074055", "f", "M", "CW", "0"}), "14074055\n");
    EXPECT_EQ(station.rigctl({"m"}), "CW\n500\n");
    // The client itself remembers for a while what it has set: another one reads.
    EXPECT_EQ(station.rigctl({"S", "1", "VFOB", "L", "RFPOWER", "0.35"}), "");
    EXPECT_EQ(station.rigctl({"s", "l", "RFPOWER"}), "1\nVFOB\n0.350000\n");
    EXPECT_EQ(station.rigctl({"l", "?"}), "PREAMP ATT AF RF NR RFPOWER AGC METER STRENGTH NB ");
    EXPECT_THAT(station.rigctl({"T", "1"}), testing::HasSubstr("rejected"));
    EXPECT_EQ(station.rigctl({"t"}), "0\n");
}

// Left out is what differs: widths and gains are those of this transceiver; frequencies out of range, unknown modes and
// lines cut short are refused here and taken there; its dummy cannot key, and keeps the form of an answer for the next.
TEST(QtLoopbackServerTest, AnswersAsDebiansServerDoes) {
    if (QStandardPaths::findExecutable("rigctld").isEmpty()) GTEST_SKIP() << "libhamlib-utils is not installed";
    SharedStation station;
    const int port = freePort();
    QProcess server;
    server.start("rigctld", {"-m", "1", "-T", "127.0.0.1", "-t", QString::number(port)});
    QTcpSocket theirs, ours;
    ASSERT_TRUE(connected(theirs, port) && connected(ours, station.port));
    for (const char* request : {"F 14074000\n",
                                "M USB 2400\n",
                                "f\n",
                                "m\n",
                                "\\get_freq\r\n",
                                "s\n",
                                "v\n",
                                "fmv\n",
                                "f f f\n",
                                "\\get_powerstat\n",
                                "+f\n",
                                "+m\n",
                                "+v\n",
                                "+s\n",
                                ";f\n",
                                ";m\n",
                                "|m\n",
                                "|s\n",
                                ",f\n",
                                "f;m;v\n",
                                "+f +m\n",
                                "+F 14080000\n",
                                ";F 14074000\n",
                                "+S 0 VFOA\n",
                                "S 1 VFOB\ns\n",
                                "S 0 VFOA\ns\n",
                                "\\chk_vfo\n",
                                "+\\chk_vfo\n",
                                "+\\get_powerstat\n",
                                "L RFPOWER 0.35\nl RFPOWER\n",
                                "U NB 1\nu NB\n",
                                "+u NB\n",
                                "+l NOSUCH\n",
                                "l NOSUCH\n",
                                "V NOSUCH\n",
                                "F x\n",
                                "T 9\n",
                                "M USB x\n",
                                "F 14081000.7\nf\n",
                                "\\power2mW 0.5 14074000 USB\n",
                                "\\mW2power 50000 14074000 USB\n"}) {
        const std::string answer = asked(ours, request);
        EXPECT_EQ(answer, asked(theirs, request, answer)) << request;
    }
    server.kill();
    server.waitForFinished();
}

TEST(QtLoopbackServerTest, ListensOnThisMachineOnlyAndTellsATakenPort) {
    QTcpServer other;
    ASSERT_TRUE(other.listen(QHostAddress::LocalHost));
    QtLoopbackServer server;
    EXPECT_EQ(server.listen(other.serverPort()), LoopbackServer::Listening::portTaken);
    const int port = freePort();
    ASSERT_EQ(server.listen(port), LoopbackServer::Listening::yes);

    std::vector<std::unique_ptr<TcpConnection>> connections;
    bool gone = false;
    server.onConnection = [&](std::unique_ptr<TcpConnection> connection) {
        connection->onReadable = [&connections] { connections.back()->write(connections.back()->read(3)); };
        connection->onClosed = [&] { gone = true; };
        connections.push_back(std::move(connection));
    };
    QTcpSocket client;
    ASSERT_TRUE(connected(client, port));
    EXPECT_EQ(asked(client, "abcdef"), "abc");
    EXPECT_EQ(connections.back()->peer(), "port " + std::to_string(client.localPort()));
    client.disconnectFromHost();
    EXPECT_TRUE(eventually([&] { return gone; }));

    // Closed from inside its own callback.
    connections.clear();
    QTcpSocket second;
    ASSERT_TRUE(connected(second, port));
    ASSERT_TRUE(eventually([&] { return !connections.empty(); }));
    connections.back()->onReadable = [&] { connections.clear(); };
    second.write("x");
    EXPECT_TRUE(eventually([&] { return second.state() == QAbstractSocket::UnconnectedState; }));
    server.stop();
    QTcpSocket third;
    third.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(port));
    EXPECT_TRUE(eventually([&] { return third.error() == QAbstractSocket::ConnectionRefusedError; }));
}

}  // namespace
}  // namespace corvane
