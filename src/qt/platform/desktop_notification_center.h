// Notices through the desktop's notification service.
#pragma once

#include <QObject>

#include "platform/notification_center.h"

namespace corvane {

// Speaks to org.freedesktop.Notifications on the session bus without ever waiting for it. Without a bus or a service
// nothing is shown and `delivered` is never called; nor is it called after the end of the centre.
class DesktopNotificationCenter final : public NotificationCenter {
public:
    void deliver(const UserNotification& notification, std::function<void(NotificationId)> delivered) override;
    void removeDelivered(NotificationId id) override;

private:
    QObject context_;  // answers that come after its end go nowhere
};

}  // namespace corvane
