// Changes of serial devices, from the system's device manager.
#pragma once

#include <QSocketNotifier>

#include <memory>

#include "qt/platform/serial_port_watcher.h"

struct udev;
struct udev_monitor;

namespace corvane {

class UdevSerialPortWatcher final : public SerialPortWatcher {
public:
    // `udev` reports a device when it is ready for use; `kernel` as soon as it exists, also without the daemon.
    enum class Source { udev, kernel };

    explicit UdevSerialPortWatcher(Source source);
    ~UdevSerialPortWatcher() override;

    bool works() const { return notifier_ != nullptr; }

    void watch(std::function<void()> changed) override;

private:
    struct Release {
        void operator()(udev* context) const;
        void operator()(udev_monitor* monitor) const;
    };

    void takeAll();

    std::unique_ptr<udev, Release> context_;
    std::unique_ptr<udev_monitor, Release> monitor_;
    std::unique_ptr<QSocketNotifier> notifier_;
    std::function<void()> changed_;
};

}  // namespace corvane
