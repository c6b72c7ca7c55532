// Why a device could not be opened, in terms that help the operator.
#pragma once

#include <QSerialPort>

#include <string>

#include "platform/serial_port.h"

namespace corvane {

// Qt reports both "in use by another program" and "not allowed" as a PermissionError; the device file tells which.
// `words` are Qt's, used where the system has no better ones. E.g. a device of group dialout that the user may not open
// gives {permission, "Permission denied", "/dev/ttyUSB0", "dialout"}.
SerialPortError openFailure(QSerialPort::SerialPortError error, const std::string& path, const std::string& words);

}  // namespace corvane
