#include "qt/platform/polling_serial_port_watcher.h"

#include <utility>

namespace corvane {

PollingSerialPortWatcher::PollingSerialPortWatcher(std::chrono::milliseconds interval) {
    timer_.setInterval(interval);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { changed_(); });
}

void PollingSerialPortWatcher::watch(std::function<void()> changed) {
    changed_ = std::move(changed);
    timer_.start();
}

}  // namespace corvane
