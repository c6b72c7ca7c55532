#include "qt/platform/serial_device.h"

#include <QCollator>
#include <QSerialPortInfo>
#include <algorithm>
#include <utility>

namespace corvane {

namespace {

SerialDevice deviceOf(const QSerialPortInfo& info) {
    const bool usb = info.hasVendorIdentifier();
    QString what = info.description();
    if (what.isEmpty()) what = info.manufacturer();
    if (what.isEmpty()) what = usb ? QStringLiteral("USB serial adapter") : QStringLiteral("Serial port");
    return {info.portName().toStdString(), info.systemLocation().toStdString(),
            (what + QLatin1String(", ") + info.systemLocation()).toStdString(), usb};
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

}  // namespace corvane
