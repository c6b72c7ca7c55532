// The list of the system's serial ports, and the observer of ports that come and go.
#pragma once

#include <memory>
#include <vector>

#include "platform/serial_port.h"

namespace corvane {

using SerialPorts = std::vector<std::shared_ptr<ORSSerialPort>>;

// Called after the list has changed, on the user-interface thread, with the affected ports only.
class SerialPortsObserver {
public:
    virtual ~SerialPortsObserver() = default;
    virtual void serialPortsWereConnected(const SerialPorts& ports) = 0;
    virtual void serialPortsWereDisconnected(const SerialPorts& ports) = 0;
};

class ORSSerialPortManager {
public:
    virtual ~ORSSerialPortManager() = default;

    // In the order of the port list: adapters on USB first, then other ports, named extra ports, and last the simulated
    // one. A port keeps its object for as long as it stays in the list. The first call may take 15 ms to ask the
    // system.
    virtual const SerialPorts& availablePorts() = 0;

    // The port to choose while none is remembered: a named extra port, else an adapter on USB, else the simulated one.
    virtual std::shared_ptr<ORSSerialPort> suggestedPort() { return nullptr; }

    virtual void setObserver(SerialPortsObserver* observer) = 0;  // or nullptr; does not own it
};

}  // namespace corvane
