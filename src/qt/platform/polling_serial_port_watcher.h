// Looks for serial devices now and then, where nobody tells.
#pragma once

#include <QTimer>

#include <chrono>

#include "qt/platform/serial_port_watcher.h"

namespace corvane {

class PollingSerialPortWatcher final : public SerialPortWatcher {
public:
    explicit PollingSerialPortWatcher(std::chrono::milliseconds interval = std::chrono::seconds(2));

    void watch(std::function<void()> changed) override;

private:
    std::function<void()> changed_;
    QTimer timer_;
};

}  // namespace corvane
