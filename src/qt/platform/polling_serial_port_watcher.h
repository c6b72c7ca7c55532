// Looks for serial devices at intervals, for systems without a device manager.
#pragma once

#include <QTimer>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "qt/platform/serial_port_watcher.h"

namespace corvane {

// The terminals that have a device, each with its instance, e.g. {"ttyS0 1742", "ttyUSB0 90311"}, in no order. Much
// cheaper than attachedSerialDevices().
std::vector<std::string> attachedTerminals();

class PollingSerialPortWatcher final : public SerialPortWatcher {
public:
    using Names = std::vector<std::string>;

    explicit PollingSerialPortWatcher(std::chrono::milliseconds interval = std::chrono::seconds(2),
                                      std::function<Names()> attached = attachedTerminals);

    // Calls `changed` when a look finds other names than the one before.
    void watch(std::function<void()> changed) override;

private:
    void look();

    std::function<Names()> attached_;
    std::function<void()> changed_;
    Names seen_;
    QTimer timer_;
};

}  // namespace corvane
