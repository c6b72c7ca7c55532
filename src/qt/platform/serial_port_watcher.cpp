#include "qt/platform/serial_port_watcher.h"

#include <QFileInfo>

#include "qt/platform/polling_serial_port_watcher.h"
#include "qt/platform/udev_serial_port_watcher.h"

namespace corvane {

std::unique_ptr<SerialPortWatcher> makeSerialPortWatcher() {
    // Without the daemon a monitor opens as well, but never reports anything.
    if (QFileInfo::exists(QStringLiteral("/run/udev/control"))) {
        auto watcher = std::make_unique<UdevSerialPortWatcher>(UdevSerialPortWatcher::Source::udev);
        if (watcher->works()) return watcher;
    }
    return std::make_unique<PollingSerialPortWatcher>();
}

}  // namespace corvane
