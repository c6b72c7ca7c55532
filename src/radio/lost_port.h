// A port that was lost while it was open, and the standing order to open it again.
#pragma once

#include <array>
#include <chrono>
#include <string>

#include "platform/serial_port.h"

namespace corvane {

struct LostPort {
    std::string name;          // as listed, e.g. "ttyUSB0"
    UsbDevice usb;             // nothing known: the name alone counts
    bool back = false;         // it is listed again
    bool opening = false;      // an attempt is under way
    std::size_t attempts = 0;  // since it came back
};

// The wait before each attempt to open a port that is back. The first lets a port settle that comes and goes; the
// others give the system time to set its permissions, and other programs time to leave it.
inline constexpr std::array attemptWaits{std::chrono::milliseconds(500), std::chrono::milliseconds(1000),
                                         std::chrono::milliseconds(2000), std::chrono::milliseconds(4000),
                                         std::chrono::milliseconds(8000)};

// Whether a listed port is the lost one. Under the lost one's name it is, unless it is known to be another device.
// Under another name it is the same device on USB only: by its serial number or, without one, by the socket.
bool isSamePort(const LostPort& lost, const ORSSerialPort& listed);

}  // namespace corvane
