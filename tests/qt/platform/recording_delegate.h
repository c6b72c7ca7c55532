// Records a port's callbacks.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/serial_port.h"

namespace corvane {

struct RecordingDelegate : ORSSerialPortDelegate {
    std::vector<std::string> reports;  // "opened", "closed", "removed", "error", or the bytes
    std::vector<SerialPortError> errors;
    std::function<void(ORSSerialPort&, const std::string&)> onReport;

    void serialPortWasOpened(ORSSerialPort& port) override { report(port, "opened"); }
    void serialPortWasClosed(ORSSerialPort& port) override { report(port, "closed"); }
    void serialPortDidReceiveData(ORSSerialPort& port, std::string_view bytes) override {
        report(port, std::string(bytes));
    }
    void serialPortWasRemovedFromSystem(ORSSerialPort& port) override {
        report(port, port.isOpen() ? "removed while open" : "removed");
    }
    void serialPortDidEncounterError(ORSSerialPort& port, const SerialPortError& error) override {
        errors.push_back(error);
        report(port, "error");
    }
    void serialPortDidStall(ORSSerialPort& port, bool stalled) override {
        report(port, stalled ? "stalled" : "takes bytes again");
    }

private:
    void report(ORSSerialPort& port, const std::string& what) {
        reports.push_back(what);
        if (onReport) onReport(port, what);
    }
};

}  // namespace corvane
