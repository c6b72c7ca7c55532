// Why a device could not be opened, in terms that help the operator.
#pragma once

#include <QSerialPort>

#include <string>
#include <vector>

#include "platform/serial_port.h"

namespace corvane {

// Where programs lock serial ports, each port by a file with the number of the process, e.g. "LCK..ttyUSB0".
inline const std::vector<std::string> lockFolders{"/run/lock", "/var/lock", "/var/lock/lockdev", "/tmp", "/var/tmp"};

// Qt reports "in use by another program", "locked" and "not allowed" as a PermissionError; the lock and the device file
// tell which. `words` are Qt's, used where the system has no better ones. E.g. a device of group dialout that the user
// may not open gives {permission, "Permission denied", "/dev/ttyUSB0", "dialout"}.
SerialPortError openFailure(QSerialPort::SerialPortError error, const std::string& path, const std::string& words,
                            const std::vector<std::string>& locks = lockFolders);

}  // namespace corvane
