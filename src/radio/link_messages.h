// The window's messages when a port fails, each with what to do about it.
#pragma once

#include <string>
#include <string_view>

#include "platform/serial_port.h"

namespace corvane {

// One sentence says what went wrong and one what to do, e.g. "/dev/ttyUSB0 is in use by another program. Close that
// program, then press Connect."
std::string linkMessage(const std::string& portName, const SerialPortError& error);

// What to do after the device of an open port has gone.
std::string linkLostMessage(const std::string& portName);

// While the lost port is waited for, and when it is back but does not open yet.
std::string waitingMessage(const std::string& portName);
std::string notYetMessage(const std::string& portName, const SerialPortError& error);

// What to do while the transceiver is switched off.
inline constexpr std::string_view switchedOffMessage =
    "The transceiver is switched off. Once it is on again, press a key here, such as that of the VFO: it does not tell "
    "by "
    "itself.";

// What to do while the device of an open port takes no bytes.
std::string linkStalledMessage(const std::string& portName);

}  // namespace corvane
