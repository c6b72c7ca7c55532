#include "radio/link_messages.h"

#include <fmt/core.h>

namespace corvane {

std::string linkMessage(const std::string& portName, const SerialPortError& error) {
    const std::string device = error.path.empty() ? portName : error.path;
    switch (error.kind) {
        case SerialPortErrorKind::busy:
            return fmt::format("{} is in use by another program. Close that program, then press Connect.", device);
        case SerialPortErrorKind::staleLock:
            return fmt::format(
                "{0} is still locked for a program that has ended. Remove its lock (sudo rm {1}), then press Connect.",
                device, error.lock);
        case SerialPortErrorKind::permission:
            if (error.group.empty())
                return fmt::format(
                    "You may not open {}, which belongs to {}. An administrator must change its permissions; then "
                    "press Connect.",
                    device, error.owner.empty() ? "somebody else" : fmt::format("the user \"{}\"", error.owner));
            return fmt::format(
                "You may not open {0}. Join the group \"{1}\" (sudo usermod -aG {1} $USER), log out and in again, then "
                "press Connect.",
                device, error.group);
        case SerialPortErrorKind::notFound:
            return fmt::format("{} does not exist. Plug the transceiver in, choose its port, then press Connect.",
                               device);
        case SerialPortErrorKind::gone:
            return linkLostMessage(portName);
        case SerialPortErrorKind::other:
            break;
    }
    return fmt::format("{}: {}. Check the cable and that the transceiver is switched on, then press Connect.", device,
                       error.text);
}

std::string linkLostMessage(const std::string& portName) {
    return fmt::format("{} was unplugged. Plug it in again, choose it in the list, then press Connect.", portName);
}

std::string waitingMessage(const std::string& portName) {
    return fmt::format("{} was unplugged. It is opened again when it returns. Press Connect to stop waiting.",
                       portName);
}

std::string notYetMessage(const std::string& portName, const SerialPortError& error) {
    return fmt::format("{} is back, but does not open yet: {}. Corvane tries again. Press Connect to try yourself.",
                       portName, error.text);
}

std::string linkStalledMessage(const std::string& portName) {
    return portName +
           " takes no data. Check the cable and that the transceiver is switched on. Press Connected to close the port "
           "at once; what was not sent is then lost.";
}

}  // namespace corvane
