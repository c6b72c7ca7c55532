// The window's messages when a port fails, each with what to do about it.
#pragma once

#include <string>

#include "platform/serial_port.h"

namespace corvane {

// One sentence says what went wrong and one what to do, e.g. "/dev/ttyUSB0 is in use by another program. Close that
// program, then press Connect."
std::string linkMessage(const std::string& portName, const SerialPortError& error);

// What to do after the device of an open port has gone.
std::string linkLostMessage(const std::string& portName);

// What to do while the device of an open port takes no bytes.
std::string linkStalledMessage(const std::string& portName);

}  // namespace corvane
