#include "qt/platform/polling_serial_port_watcher.h"

#include <filesystem>
#include <utility>

#include "qt/platform/serial_device.h"

namespace corvane {

std::vector<std::string> attachedTerminals() {
    namespace fs = std::filesystem;
    std::vector<std::string> names;
    std::error_code ignored;
    for (fs::directory_iterator terminal("/sys/class/tty", ignored), end; terminal != end; terminal.increment(ignored))
        if (fs::exists(terminal->path() / "device", ignored))
            names.push_back(terminal->path().filename().string() + ' ' + std::to_string(instanceOf(terminal->path())));
    return names;
}

PollingSerialPortWatcher::PollingSerialPortWatcher(std::chrono::milliseconds interval, std::function<Names()> attached)
    : attached_(std::move(attached)) {
    timer_.setInterval(interval);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
}

void PollingSerialPortWatcher::watch(std::function<void()> changed) {
    changed_ = std::move(changed);
    seen_ = attached_();
    timer_.start();
}

void PollingSerialPortWatcher::look() {
    Names names = attached_();
    if (names == seen_) return;
    seen_ = std::move(names);
    changed_();
}

}  // namespace corvane
