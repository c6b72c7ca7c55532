// Notices through the desktop's notification service.
#pragma once

#include <QObject>

#include "platform/notification_center.h"

namespace corvane {

// Sends notices to org.freedesktop.Notifications on the session bus and never waits for an answer. Without a bus or a
// service nothing is shown and `delivered` is not called. It is not called after the object's end either.
class DesktopNotificationCenter final : public NotificationCenter {
public:
    void deliver(const UserNotification& notification, std::function<void(NotificationId)> delivered) override;
    void removeDelivered(NotificationId id) override;

private:
    QObject context_;  // ends with us: later answers are ignored
};

}  // namespace corvane
