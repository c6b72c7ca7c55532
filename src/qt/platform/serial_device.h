// A serial device as the system lists it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/usb_device.h"

namespace corvane {

struct SerialDevice {
    std::string name;            // e.g. "ttyUSB0"
    std::string location;        // e.g. "/dev/ttyUSB0"
    std::string details;         // for the operator, e.g. "CP210x UART Bridge, /dev/ttyUSB0"
    bool usb = false;            // on USB, as transceivers are
    std::uint64_t instance = 0;  // another one once the device has left and come back; see instanceOf()
    UsbDevice usbDevice = {};

    bool operator==(const SerialDevice&) const = default;
};

// The devices attached now: adapters on USB first, then the others, each in the order of their names, "ttyUSB2" before
// "ttyUSB10".
std::vector<SerialDevice> attachedSerialDevices();

// What the kernel tells of the device behind a terminal, e.g. "ttyUSB0", in its tree below `root`. Nothing of one that
// is not on USB.
UsbDevice usbDeviceOf(const std::string& terminal, const std::string& root = "/sys");

// What tells a device from one that has come in its place under the same path: the system makes a new file for each.
// 0 while there is none. A path may be a symbolic link.
std::uint64_t instanceOf(const std::string& path);

}  // namespace corvane
