// Tells when serial devices may have come or gone.
#pragma once

#include <functional>
#include <memory>

namespace corvane {

// Calls `changed` from the event loop whenever the list of devices may have changed, sometimes without need.
class SerialPortWatcher {
public:
    virtual ~SerialPortWatcher() = default;

    // Replaces an earlier `changed`.
    virtual void watch(std::function<void()> changed) = 0;
};

// Listens to the system's device manager if one runs, otherwise looks every two seconds.
std::unique_ptr<SerialPortWatcher> makeSerialPortWatcher();

}  // namespace corvane
