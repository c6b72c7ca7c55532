// One Corvane for each user's session: a second start brings the window of the first to the front.
#pragma once

#include <QObject>
#include <QVariantMap>

#include <functional>

namespace corvane {

// Offers the desktop's way to activate a running program (org.freedesktop.Application) on the session bus under
// "org.corvane.Corvane". Without a session bus every start is the first.
class RunningInstance : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    // Whether this process is the first. If not, the first has been asked to come to the front.
    bool isFirst();

    // Called when another start has asked for the window. `token` lets it take the focus, if the desktop gave one.
    std::function<void(const QString& token)> onActivated = [](const QString&) {};

public slots:
    void Activate(const QVariantMap& platformData);  // NOLINT(readability-identifier-naming): the name on the bus
};

}  // namespace corvane
