#include "qt/platform/desktop_notification_center.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStringList>
#include <QVariantMap>
#include <utility>

namespace corvane {

namespace {

constexpr int serviceDecides = -1;  // how long a notice is shown

QDBusMessage call(const char* method) {
    const QString service = QStringLiteral("org.freedesktop.Notifications");
    return QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/Notifications"), service,
                                          QLatin1String(method));
}

QDBusMessage notify(const UserNotification& notification) {
    QVariantMap hints{{QStringLiteral("desktop-entry"), QStringLiteral("corvane")}};
    if (!notification.hasSound) hints.insert(QStringLiteral("suppress-sound"), true);
    QDBusMessage message = call("Notify");
    message << QStringLiteral("Corvane") << uint{0} << QStringLiteral("corvane")
            << QCoreApplication::translate("Notifications", notification.title.c_str())
            << QString::fromStdString(notification.informativeText).toHtmlEscaped()  // the body is markup
            << QStringList() << hints << serviceDecides;
    return message;
}

}  // namespace

void DesktopNotificationCenter::deliver(const UserNotification& notification,
                                        std::function<void(NotificationId)> delivered) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(notify(notification)), &context_);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &context_, [answer, delivered = std::move(delivered)] {
        answer->deleteLater();
        const QDBusPendingReply<uint> reply = *answer;
        if (reply.isValid() && delivered) delivered(reply.value());
    });
}

void DesktopNotificationCenter::removeDelivered(NotificationId id) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    QDBusMessage message = call("CloseNotification");
    message << uint{id};
    bus.asyncCall(message);
}

}  // namespace corvane
