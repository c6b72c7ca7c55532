#include "radio/link_messages.h"

namespace corvane {

std::string linkMessage(const std::string& portName, const SerialPortError& error) {
    const std::string device = error.path.empty() ? portName : error.path;
    switch (error.kind) {
        case SerialPortErrorKind::busy:
            return device + " is in use by another program. Close that program, then press Connect.";
        case SerialPortErrorKind::permission:
            if (error.group.empty())
                return "You may not open " + device + ". Ask for the right to read and write it, then press Connect.";
            return "You may not open " + device + ". Join the group \"" + error.group + "\" (sudo usermod -aG " +
                   error.group + " $USER), log out and in again, then press Connect.";
        case SerialPortErrorKind::notFound:
            return device + " does not exist. Plug the transceiver in, choose its port, then press Connect.";
        case SerialPortErrorKind::gone:
            return linkLostMessage(portName);
        case SerialPortErrorKind::other:
            break;
    }
    return device + ": " + error.text +
           ". Check the cable and that the transceiver is switched on, then press Connect.";
}

std::string linkLostMessage(const std::string& portName) {
    return portName + " was unplugged. Plug it in again, choose it in the list, then press Connect.";
}

}  // namespace corvane
