// Why a device would not open, in terms that help the operator.
#pragma once

#include <QSerialPort>

#include <string>

#include "platform/serial_port.h"

namespace corvane {

// Qt calls both "held by somebody else" and "not allowed" a PermissionError; the device itself tells them apart.
// `words` are Qt's own and stand in the result where the system has no better ones. E.g. a device of group dialout that
// the user may not open gives {permission, "Permission denied", "/dev/ttyUSB0", "dialout"}.
SerialPortError openFailure(QSerialPort::SerialPortError error, const std::string& path, const std::string& words);

}  // namespace corvane
