#include "qt/platform/qt_serial_port_manager.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "qt/platform/qt_serial_port.h"

namespace corvane {

QtSerialPortManager::QtSerialPortManager(SerialPortSources sources) : sources_(std::move(sources)) {
    settled_.setSingleShot(true);
    settled_.setInterval(sources_.settle);
    QObject::connect(&settled_, &QTimer::timeout, &settled_, [this] { refresh(); });
    QObject::connect(&extraTimer_, &QTimer::timeout, &extraTimer_, [this] { lookAtExtras(); });
}

// Asking the system takes too long for the window's first paint, so it is done when the list is first wanted.
const SerialPorts& QtSerialPortManager::availablePorts() {
    if (!listed_) {
        listed_ = true;
        startWatching();
        extras_ = presentExtras();
        take(presentDevices());
    }
    return ports_;
}

void QtSerialPortManager::startWatching() {
    if (sources_.watcher) sources_.watcher->watch([this] { settled_.start(); });
    if (!sources_.extraPaths.empty()) extraTimer_.start(sources_.extraInterval);
}

std::vector<SerialDevice> QtSerialPortManager::presentExtras() const {
    std::vector<SerialDevice> extras;
    for (const std::string& path : sources_.extraPaths) {
        if (const std::uint64_t instance = instanceOf(path); instance != 0)
            extras.push_back({path, path, "Extra port, " + path, false, instance});
    }
    return extras;
}

std::vector<SerialDevice> QtSerialPortManager::presentDevices() const {
    std::vector<SerialDevice> devices = sources_.devices ? sources_.devices() : std::vector<SerialDevice>();
    const auto listed = static_cast<std::ptrdiff_t>(devices.size());
    for (const SerialDevice& extra : extras_) {
        const auto end = devices.begin() + listed;
        const bool known = std::any_of(devices.begin(), end,
                                       [&](const SerialDevice& device) { return device.location == extra.location; });
        if (!known) devices.push_back(extra);
    }
    return devices;
}

// Makes the list from the devices. A device listed before keeps its port; returns the new ports.
SerialPorts QtSerialPortManager::take(const std::vector<SerialDevice>& devices) {
    std::vector<Entry> entries;
    SerialPorts fresh;
    for (const SerialDevice& device : devices) {
        // The system's details of a device may grow just after it appears; the rest stays. A device that left and came
        // back between two looks is another instance: its port is dead, and a new one takes its place.
        const auto known = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
            return entry.device.name == device.name && entry.device.location == device.location &&
                   entry.device.instance == device.instance && !entry.port->hasHungUp();
        });
        if (known != entries_.end()) {
            entries.push_back(*known);
        } else {
            entries.push_back({device, std::make_shared<QtSerialPort>(device.name, device.details, device.location,
                                                                      device.usbDevice)});
            fresh.push_back(entries.back().port);
        }
    }
    entries_ = std::move(entries);
    ports_.clear();
    for (const Entry& entry : entries_) ports_.push_back(entry.port);
    if (sources_.lastPort) ports_.push_back(sources_.lastPort);
    return fresh;
}

std::shared_ptr<ORSSerialPort> QtSerialPortManager::suggestedPort() {
    availablePorts();
    const auto isExtra = [this](const Entry& entry) {
        return std::find(extras_.begin(), extras_.end(), entry.device) != extras_.end();
    };
    auto entry = std::find_if(entries_.begin(), entries_.end(), isExtra);
    if (entry == entries_.end())
        entry = std::find_if(entries_.begin(), entries_.end(), [](const Entry& listed) { return listed.device.usb; });
    return entry == entries_.end() ? std::shared_ptr<ORSSerialPort>(sources_.lastPort) : entry->port;
}

void QtSerialPortManager::refresh() {
    extras_ = presentExtras();
    const std::vector<Entry> before = entries_;
    const SerialPorts connected = take(presentDevices());
    SerialPorts disconnected;
    for (const Entry& entry : before) {
        if (std::find(ports_.begin(), ports_.end(), entry.port) == ports_.end()) disconnected.push_back(entry.port);
    }
    // The list is complete before anyone is told.
    for (const Entry& entry : before) {
        if (std::find(disconnected.begin(), disconnected.end(), entry.port) != disconnected.end()) {
            entry.port->deviceLeft();
        }
    }
    if (!disconnected.empty() && observer_ != nullptr) observer_->serialPortsWereDisconnected(disconnected);
    if (!connected.empty() && observer_ != nullptr) observer_->serialPortsWereConnected(connected);
}

void QtSerialPortManager::lookAtExtras() {
    // The system may give a new terminal the numbers of the one before.
    const bool replaced =
        std::any_of(entries_.begin(), entries_.end(), [](const Entry& entry) { return entry.port->hasHungUp(); });
    if (replaced || presentExtras() != extras_) refresh();
}

std::vector<std::string> splitPaths(std::string_view paths) {
    std::vector<std::string> pieces;
    while (!paths.empty()) {
        const std::size_t end = std::min(paths.find(':'), paths.size());
        const std::string piece(paths.substr(0, end));
        if (!piece.empty() && std::find(pieces.begin(), pieces.end(), piece) == pieces.end()) pieces.push_back(piece);
        paths.remove_prefix(std::min(end + 1, paths.size()));
    }
    return pieces;
}

}  // namespace corvane
