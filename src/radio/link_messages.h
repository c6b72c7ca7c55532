// What the window says of the link: its state, and what to do when a port fails.
#pragma once

#include <string>

#include "platform/serial_port.h"

namespace corvane {

// A sentence on what went wrong and one on what to do, e.g. "You may not open /dev/ttyUSB0. Run "sudo usermod -aG
// dialout $USER", log out and in again, then press Connect."
std::string linkMessage(const std::string& portName, const SerialPortError& error);

// What to do after the device of an open port has gone.
std::string linkLostMessage(const std::string& portName);

}  // namespace corvane
