// Notices on the desktop.
#pragma once

#include <functional>
#include <string>

namespace corvane {

struct UserNotification {
    std::string title;            // e.g. "Serial Port Connected"; shown in the user's language where it is translated
    std::string informativeText;  // one or two sentences
    bool hasSound = false;

    bool operator==(const UserNotification&) const = default;
};

using NotificationId = unsigned;

class NotificationCenter {
public:
    virtual ~NotificationCenter() = default;

    // Shows a notice; `delivered` is called with its id once it is shown. On a desktop without notices it is never
    // called.
    virtual void deliver(const UserNotification& notification, std::function<void(NotificationId)> delivered) = 0;
    virtual void removeDelivered(NotificationId id) = 0;
};

}  // namespace corvane
