// A port that keeps all writes and calls its delegate like a real one, but at once.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/serial_port.h"

namespace corvane {

class FakeSerialPort final : public ORSSerialPort {
public:
    struct Line {
        int baudRate = 9600;
        Parity parity = Parity::odd;
        int stopBits = 2;
        bool rtsCts = false;

        bool operator==(const Line&) const = default;
    };

    explicit FakeSerialPort(std::string name, std::vector<std::string>* journal = nullptr)
        : name_(std::move(name)), details_("USB serial adapter, /dev/" + name_), journal_(journal) {}

    const std::string& name() const override { return name_; }
    const std::string& description() const override { return name_; }
    const std::string& details() const override { return details_; }

    const UsbDevice& usb() const override { return device; }

    int baudRate() const override { return line.baudRate; }
    void setBaudRate(int baudRate) override { line.baudRate = baudRate; }
    void setParity(Parity parity) override { line.parity = parity; }
    void setNumberOfStopBits(int bits) override { line.stopBits = bits; }
    void setUsesRTSCTSFlowControl(bool uses) override { line.rtsCts = uses; }

    bool isOpen() const override { return open_; }
    void open() override {
        if (open_) return;
        note("open");
        if (openFailure) return fail(*openFailure);
        open_ = true;
        if (delegate_) delegate_->serialPortWasOpened(*this);
    }
    void close() override {
        if (!open_) return;
        note("close");
        open_ = false;
        if (delegate_) delegate_->serialPortWasClosed(*this);
    }
    void sendData(std::string_view bytes) override {
        if (!open_) return;
        note(bytes);
        written.emplace_back(bytes);
        if (onWrite) onWrite(bytes);
    }
    std::size_t waitingBytes() const override { return waiting; }
    void setDelegate(ORSSerialPortDelegate* delegate) override {
        note(delegate ? "attach" : "detach");
        delegate_ = delegate;
    }

    // Events from the device.
    void receive(std::string_view bytes) {
        if (open_ && delegate_) delegate_->serialPortDidReceiveData(*this, bytes);
    }
    void unplug() {
        if (!std::exchange(open_, false)) return;
        if (delegate_) delegate_->serialPortWasRemovedFromSystem(*this);
    }
    void stall(bool stalled) {
        if (delegate_) delegate_->serialPortDidStall(*this, stalled);
    }
    void fail(const SerialPortError& error) {
        if (delegate_) delegate_->serialPortDidEncounterError(*this, error);
    }

    Line line;
    UsbDevice device;
    std::vector<std::string> written;               // one entry per write
    std::function<void(std::string_view)> onWrite;  // the device at the other end
    std::size_t waiting = 0;                        // bytes that the device has not taken
    std::optional<SerialPortError> openFailure;     // makes open() fail

private:
    void note(std::string_view what) {
        if (journal_) journal_->push_back(name_ + ' ' + std::string(what));
    }

    const std::string name_;
    const std::string details_;
    std::vector<std::string>* const journal_;  // all calls in order; ports may share one
    bool open_ = false;
    ORSSerialPortDelegate* delegate_ = nullptr;
};

}  // namespace corvane
