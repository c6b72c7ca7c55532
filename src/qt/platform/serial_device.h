// A serial device as the system lists it.
#pragma once

#include <string>
#include <vector>

namespace corvane {

struct SerialDevice {
    std::string name;      // e.g. "ttyUSB0"
    std::string location;  // e.g. "/dev/ttyUSB0"
    std::string details;   // for the operator, e.g. "CP210x UART Bridge, /dev/ttyUSB0"
    bool usb = false;      // on USB, as transceivers are

    bool operator==(const SerialDevice&) const = default;
};

// The devices attached now: adapters on USB first, then the others, each in the order of their names, "ttyUSB2" before
// "ttyUSB10".
std::vector<SerialDevice> attachedSerialDevices();

}  // namespace corvane
