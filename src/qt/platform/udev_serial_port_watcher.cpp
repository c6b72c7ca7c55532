#include "qt/platform/udev_serial_port_watcher.h"

#include <libudev.h>

#include <utility>

namespace corvane {

namespace {

struct ReleaseDevice {
    void operator()(udev_device* device) const { udev_device_unref(device); }
};

}  // namespace

void UdevSerialPortWatcher::Release::operator()(udev* context) const { udev_unref(context); }

void UdevSerialPortWatcher::Release::operator()(udev_monitor* monitor) const { udev_monitor_unref(monitor); }

UdevSerialPortWatcher::UdevSerialPortWatcher(Source source) : context_(udev_new()) {
    if (!context_) return;
    monitor_.reset(udev_monitor_new_from_netlink(context_.get(), source == Source::udev ? "udev" : "kernel"));
    if (!monitor_ || udev_monitor_filter_add_match_subsystem_devtype(monitor_.get(), "tty", nullptr) < 0 ||
        udev_monitor_enable_receiving(monitor_.get()) < 0) {
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(udev_monitor_get_fd(monitor_.get()), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { takeAll(); });
}

UdevSerialPortWatcher::~UdevSerialPortWatcher() = default;

void UdevSerialPortWatcher::watch(std::function<void()> changed) { changed_ = std::move(changed); }

void UdevSerialPortWatcher::takeAll() {
    bool any = false;
    while (std::unique_ptr<udev_device, ReleaseDevice>(udev_monitor_receive_device(monitor_.get()))) any = true;
    if (any && changed_) changed_();
}

}  // namespace corvane
