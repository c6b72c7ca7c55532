// What the window says when a port fails, and what to do about it.
#pragma once

#include <string>

#include "platform/serial_port.h"

namespace corvane {

// A sentence on what went wrong and one on what to do, e.g. "/dev/ttyUSB0 is in use by another program. Close that
// program, then press Connect."
std::string linkMessage(const std::string& portName, const SerialPortError& error);

// What to do after the device of an open port has gone.
std::string linkLostMessage(const std::string& portName);

}  // namespace corvane
