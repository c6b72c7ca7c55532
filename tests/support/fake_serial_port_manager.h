// A list of ports that tests plug in and out.
#pragma once

#include <algorithm>

#include "platform/serial_port_manager.h"

namespace corvane {

class FakeSerialPortManager final : public ORSSerialPortManager {
public:
    const SerialPorts& availablePorts() override { return ports; }
    std::shared_ptr<ORSSerialPort> suggestedPort() override { return suggested; }
    void setObserver(SerialPortsObserver* observer) override { observer_ = observer; }

    void connect(const SerialPorts& added) {
        ports.insert(ports.end(), added.begin(), added.end());
        if (observer_) observer_->serialPortsWereConnected(added);
    }
    void disconnect(const SerialPorts& removed) {
        std::erase_if(ports, [&](const auto& port) { return std::ranges::find(removed, port) != removed.end(); });
        if (observer_) observer_->serialPortsWereDisconnected(removed);
    }

    SerialPorts ports;
    std::shared_ptr<ORSSerialPort> suggested;

private:
    SerialPortsObserver* observer_ = nullptr;
};

}  // namespace corvane
