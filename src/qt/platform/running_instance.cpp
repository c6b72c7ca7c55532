#include "qt/platform/running_instance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>

namespace corvane {

namespace {

const QString serviceName = QStringLiteral("org.corvane.Corvane");
const QString objectPath = QStringLiteral("/org/corvane/Corvane");
const QString interfaceName = QStringLiteral("org.freedesktop.Application");
constexpr int patience = 2000;  // milliseconds, for a first instance that is busy
const QString tokenKey = QStringLiteral("activation-token");

// The first instance answers once it has been asked; one that hangs must not hold up this start for long.
void activateFirst(const QDBusConnection& bus) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(serviceName, objectPath, interfaceName, QStringLiteral("Activate"));
    QVariantMap data;
    if (qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"))
        data.insert(tokenKey, qEnvironmentVariable("XDG_ACTIVATION_TOKEN"));
    call << data;
    bus.call(call, QDBus::Block, patience);
}

}  // namespace

bool RunningInstance::isFirst() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return true;
    bus.registerObject(objectPath, this, QDBusConnection::ExportAllSlots);
    if (bus.registerService(serviceName)) return true;
    activateFirst(bus);
    return false;
}

void RunningInstance::Activate(const QVariantMap& platformData) {
    onActivated(platformData.value(tokenKey).toString());
}

}  // namespace corvane
