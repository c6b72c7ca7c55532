// What tells one device on USB from another.
#pragma once

#include <string>

namespace corvane {

// Empty texts: not on USB, or not known.
struct UsbDevice {
    std::string model;   // vendor, product and interface, e.g. "10c4:ea70:00"
    std::string serial;  // of the single device, e.g. "01A2B3C4"; many have none
    std::string socket;  // where it is plugged in, e.g. "1-1.2"

    bool operator==(const UsbDevice&) const = default;
};

}  // namespace corvane
