#include "qt/platform/serial_device.h"

#include <sys/stat.h>

#include <QCollator>
#include <QSerialPortInfo>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <utility>

namespace corvane {

namespace {

SerialDevice deviceOf(const QSerialPortInfo& info) {
    const bool usb = info.hasVendorIdentifier();
    QString what = info.description();
    if (what.isEmpty()) what = info.manufacturer();
    if (what.isEmpty()) what = usb ? QStringLiteral("USB serial adapter") : QStringLiteral("Serial port");
    return {info.portName().toStdString(),
            info.systemLocation().toStdString(),
            (what + QLatin1String(", ") + info.systemLocation()).toStdString(),
            usb,
            instanceOf(info.systemLocation().toStdString()),
            usbDeviceOf(info.portName().toStdString())};
}

std::string lineOf(const std::filesystem::path& file) {
    std::string line;
    std::ifstream stream(file);
    std::getline(stream, line);
    return line;
}

}  // namespace

std::vector<SerialDevice> attachedSerialDevices() {
    QList<QSerialPortInfo> infos = QSerialPortInfo::availablePorts();
    QCollator names;
    names.setNumericMode(true);
    std::sort(infos.begin(), infos.end(), [&names](const QSerialPortInfo& a, const QSerialPortInfo& b) {
        if (a.hasVendorIdentifier() != b.hasVendorIdentifier()) return a.hasVendorIdentifier();
        return names.compare(a.portName(), b.portName()) < 0;
    });
    std::vector<SerialDevice> devices;
    std::transform(infos.begin(), infos.end(), std::back_inserter(devices), deviceOf);
    return devices;
}

// From the terminal upwards come its interface, e.g. "1-1.2:1.0", and then the device with its socket's name, "1-1.2".
UsbDevice usbDeviceOf(const std::string& terminal, const std::string& root) {
    namespace fs = std::filesystem;
    std::error_code failed;
    std::string interface;
    fs::path place = fs::canonical(fs::path(root) / "class/tty" / terminal / "device", failed);
    for (; !failed && place.has_relative_path(); place = place.parent_path()) {
        if (interface.empty()) interface = lineOf(place / "bInterfaceNumber");
        const std::string vendor = lineOf(place / "idVendor");
        if (vendor.empty()) continue;
        return {vendor + ':' + lineOf(place / "idProduct") + ':' + interface, lineOf(place / "serial"),
                place.filename().string()};
    }
    return {};
}

std::uint64_t instanceOf(const std::string& path) {
    struct stat link {};
    struct stat device {};
    if (::lstat(path.c_str(), &link) != 0 || ::stat(path.c_str(), &device) != 0) return 0;
    return link.st_ino ^ (static_cast<std::uint64_t>(device.st_ino) << 32U) ^ device.st_rdev;
}

}  // namespace corvane
