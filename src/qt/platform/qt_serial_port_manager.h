// The list of serial ports.
#pragma once

#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/serial_port_manager.h"
#include "qt/platform/listed_port.h"
#include "qt/platform/serial_device.h"
#include "qt/platform/serial_port_watcher.h"

namespace corvane {

// Where the ports come from.
struct SerialPortSources {
    std::function<std::vector<SerialDevice>()> devices = attachedSerialDevices;
    std::vector<std::string> extraPaths;         // listed under the path as written, while it exists
    std::unique_ptr<SerialPortWatcher> watcher;  // none: the list of devices is read once
    std::shared_ptr<ListedPort> lastPort;        // always the last of the list; may be null

    std::chrono::milliseconds settle{200};          // quiet time after a change: a burst gives one notice
    std::chrono::milliseconds extraInterval{1000};  // between two looks at the extra paths
};

class QtSerialPortManager final : public ORSSerialPortManager {
public:
    explicit QtSerialPortManager(SerialPortSources sources);

    const SerialPorts& availablePorts() override;
    std::shared_ptr<ORSSerialPort> suggestedPort() override;
    void setObserver(SerialPortsObserver* observer) override { observer_ = observer; }

private:
    struct Entry {
        SerialDevice device;
        std::shared_ptr<ListedPort> port;
    };

    std::vector<SerialDevice> presentDevices() const;
    std::vector<SerialDevice> presentExtras() const;
    SerialPorts take(const std::vector<SerialDevice>& devices);
    void refresh();
    void lookAtExtras();
    void startWatching();

    SerialPortSources sources_;
    bool listed_ = false;  // ports are announced only after the list was asked for
    std::vector<Entry> entries_;
    std::vector<SerialDevice> extras_;  // present at the last look
    SerialPorts ports_;
    SerialPortsObserver* observer_ = nullptr;
    QTimer settled_;
    QTimer extraTimer_;
};

// "/dev/pts/5:/dev/radio" as {"/dev/pts/5", "/dev/radio"}; empty pieces and repetitions are left out.
std::vector<std::string> splitPaths(std::string_view paths);

}  // namespace corvane
