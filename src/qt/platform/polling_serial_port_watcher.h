// Looks for serial devices now and then, where nobody tells.
#pragma once

#include <QTimer>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "qt/platform/serial_port_watcher.h"

namespace corvane {

// The names of the terminals that a device stands behind, e.g. {"ttyS0", "ttyUSB0"}, in no order. A small part of the
// cost of asking for everything that is known of them.
std::vector<std::string> attachedTerminals();

class PollingSerialPortWatcher final : public SerialPortWatcher {
public:
    using Names = std::vector<std::string>;

    explicit PollingSerialPortWatcher(std::chrono::milliseconds interval = std::chrono::seconds(2),
                                      std::function<Names()> attached = attachedTerminals);

    // Calls `changed` after a look that found other names than the look before.
    void watch(std::function<void()> changed) override;

private:
    void look();

    std::function<Names()> attached_;
    std::function<void()> changed_;
    Names seen_;
    QTimer timer_;
};

}  // namespace corvane
