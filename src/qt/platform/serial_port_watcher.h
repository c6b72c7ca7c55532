// Word that serial devices may have come or gone.
#pragma once

#include <functional>
#include <memory>

namespace corvane {

// Calls `changed` from the event loop whenever the list of devices may have changed; calls too many do no harm.
class SerialPortWatcher {
public:
    virtual ~SerialPortWatcher() = default;

    // Replaces an earlier `changed`.
    virtual void watch(std::function<void()> changed) = 0;
};

// Word from the system's device manager where one runs; elsewhere a call every two seconds.
std::unique_ptr<SerialPortWatcher> makeSerialPortWatcher();

}  // namespace corvane
