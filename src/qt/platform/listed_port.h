// What every port of the list has in common.
#pragma once

#include <QTimer>

#include <memory>
#include <string>
#include <string_view>

#include "platform/serial_port.h"
#include "radio/response_assembler.h"

namespace corvane {

struct LineSettings {
    int baudRate = 38400;  // bits a second
    Parity parity = Parity::none;
    int stopBits = 1;
    bool rtsCts = true;

    bool operator==(const LineSettings&) const = default;
};

// Keeps the names, the line settings and the delegate, and makes whole responses of the bytes that come. From inside
// any report the delegate may close the port, open it again, change the delegate or let the port go.
class ListedPort : public ORSSerialPort, public std::enable_shared_from_this<ListedPort> {
public:
    ListedPort(std::string name, std::string details);

    const std::string& name() const override { return name_; }
    const std::string& description() const override { return name_; }
    const std::string& details() const override { return details_; }

    int baudRate() const override { return settings_.baudRate; }
    void setBaudRate(int baudRate) override;
    void setParity(Parity parity) override;
    void setNumberOfStopBits(int bits) override;
    void setUsesRTSCTSFlowControl(bool uses) override;
    void setDelegate(ORSSerialPortDelegate* delegate) override { delegate_ = delegate; }

    // The device behind the port has gone from the system: an open port is closed and says so, once.
    virtual void deviceLeft() = 0;

protected:
    // Lets the port live until the event loop runs again, should its last owner let go during a report. Every handler
    // that ends in a report begins with one.
    class KeepAlive {
    public:
        explicit KeepAlive(ListedPort& port) : port_(port.weak_from_this().lock()) {}
        ~KeepAlive();
        KeepAlive(const KeepAlive&) = delete;
        KeepAlive& operator=(const KeepAlive&) = delete;

    private:
        std::shared_ptr<ListedPort> port_;
    };

    const LineSettings& settings() const { return settings_; }
    virtual void settingsChanged() {}

    // Bytes from the line, cut anywhere. Whole responses go to the delegate at once, a tail once nothing has come for
    // the assembler's patience. Responses are dropped as soon as the port is not open.
    void receive(std::string_view bytes);
    void forgetTail();

    void tellOpened();
    void tellClosed();
    void tellRemoved();
    void tellError(const SerialPortError& error);

private:
    template <class Change>
    void change(Change apply);

    std::string name_;
    std::string details_;
    LineSettings settings_;
    ORSSerialPortDelegate* delegate_ = nullptr;
    ResponseAssembler assembler_;
    QTimer patience_;
};

}  // namespace corvane
