// Notices that are delivered at once, with ids from 1.
#pragma once

#include <vector>

#include "platform/notification_center.h"

namespace corvane {

class RecordingNotificationCenter final : public NotificationCenter {
public:
    void deliver(const UserNotification& notification, std::function<void(NotificationId)> delivered) override {
        shown.push_back(notification);
        delivered(static_cast<NotificationId>(shown.size()));
    }
    void removeDelivered(NotificationId id) override { removed.push_back(id); }

    std::vector<UserNotification> shown;
    std::vector<NotificationId> removed;
};

}  // namespace corvane
