#include <gtest/gtest.h>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <memory>
#include <optional>
#include <vector>

#include "event_loop.h"
#include "qt/platform/desktop_notification_center.h"

namespace corvane {
namespace {

constexpr const char* serviceName = "org.freedesktop.Notifications";

// Our own bus, without services and without automatic starts.
class PrivateBus {
public:
    PrivateBus() {
        QFile config(folder_.filePath("bus.conf"));
        if (!config.open(QIODevice::WriteOnly)) return;
        config.write("<busconfig><type>session</type><listen>unix:dir=" + folder_.path().toUtf8() +
                     "</listen><policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
                     "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>");
        config.close();
        daemon_.start("dbus-daemon", {"--nofork", "--print-address=1", "--config-file=" + config.fileName()});
        if (daemon_.waitForReadyRead(5000)) address_ = daemon_.readLine().trimmed();
    }
    ~PrivateBus() {
        daemon_.kill();
        daemon_.waitForFinished();
    }
    QByteArray address() const { return address_; }

private:
    QTemporaryDir folder_;
    QProcess daemon_;
    QByteArray address_;
};

// A notification service that numbers its notices from 7 and records the calls.
class FakeService : public QDBusVirtualObject {
public:
    std::vector<QDBusMessage> calls;
    bool refuses = false;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        calls.push_back(message);
        if (refuses) return connection.send(message.createErrorReply(QDBusError::Failed, "no"));
        QDBusMessage reply = message.createReply();
        if (message.member() == "Notify") reply << uint(6 + calls.size());
        return connection.send(reply);
    }
};

struct NotificationTest : testing::Test {
    static inline std::unique_ptr<PrivateBus> bus;
    FakeService service;
    std::optional<QDBusConnection> connection;
    std::vector<NotificationId> delivered;
    DesktopNotificationCenter center;

    static void SetUpTestSuite() {
        if (QStandardPaths::findExecutable("dbus-daemon").isEmpty()) return;
        bus = std::make_unique<PrivateBus>();
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus->address());
    }
    static void TearDownTestSuite() { bus.reset(); }

    void SetUp() override {
        if (!bus) GTEST_SKIP() << "no dbus-daemon here";
        ASSERT_FALSE(bus->address().isEmpty());
    }
    void TearDown() override { QDBusConnection::disconnectFromBus("service"); }

    void startService() {
        connection = QDBusConnection::connectToBus(QString::fromUtf8(bus->address()), "service");
        ASSERT_TRUE(connection->registerVirtualObject("/org/freedesktop/Notifications", &service));
        ASSERT_TRUE(connection->registerService(serviceName));
    }
    void deliver(const UserNotification& notification) {
        center.deliver(notification, [this](NotificationId id) { delivered.push_back(id); });
    }
};

TEST_F(NotificationTest, DeliversWithItsTextsAndTakesAwayAgain) {
    startService();
    deliver({"Serial Port Connected", "Serial Port <ttyUSB0>", false});
    ASSERT_TRUE(eventually([&] { return !delivered.empty(); }));
    EXPECT_EQ(delivered, std::vector<NotificationId>{7});
    ASSERT_EQ(service.calls.size(), 1U);
    EXPECT_EQ(service.calls[0].signature(), "susssasa{sv}i");
    const QVariantList values = service.calls[0].arguments();
    EXPECT_EQ(values[0].toString(), "Corvane");
    EXPECT_EQ(values[1].toUInt(), 0U);
    EXPECT_EQ(values[3].toString(), "Serial Port Connected");
    EXPECT_EQ(values[4].toString(), "Serial Port &lt;ttyUSB0&gt;");
    EXPECT_TRUE(qdbus_cast<QVariantMap>(values[6])["suppress-sound"].toBool());

    center.removeDelivered(7);
    ASSERT_TRUE(eventually([&] { return service.calls.size() == 2; }));
    EXPECT_EQ(service.calls[1].member(), "CloseNotification");
    EXPECT_EQ(service.calls[1].arguments(), QVariantList{7U});
}

TEST_F(NotificationTest, ASoundIsNotSuppressed) {
    startService();
    deliver({"Title", "Text", true});
    ASSERT_TRUE(eventually([&] { return !delivered.empty(); }));
    EXPECT_FALSE(qdbus_cast<QVariantMap>(service.calls[0].arguments()[6]).contains("suppress-sound"));
}

TEST_F(NotificationTest, ARefusalOrNoServiceDeliversNothing) {
    deliver({"Nobody", "is there", false});
    center.removeDelivered(1);
    service.refuses = true;
    startService();
    deliver({"Title", "Text", false});
    ASSERT_TRUE(eventually([&] { return !service.calls.empty(); }));
    service.refuses = false;
    deliver({"Title", "Text", false});
    ASSERT_TRUE(eventually([&] { return !delivered.empty(); }));
    EXPECT_EQ(delivered, std::vector<NotificationId>{8}) << "the answers come in order";
    EXPECT_EQ(service.calls.size(), 2U);
}

}  // namespace
}  // namespace corvane
