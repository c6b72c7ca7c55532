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

// Keeps the names, the line settings and the delegate, and assembles received bytes into whole responses. From inside
// any callback the delegate may close the port, open it again, change the delegate or release the port.
class ListedPort : public ORSSerialPort, public std::enable_shared_from_this<ListedPort> {
public:
    ListedPort(std::string name, std::string details, UsbDevice usb = {});

    const std::string& name() const override { return name_; }
    const std::string& description() const override { return name_; }
    const std::string& details() const override { return details_; }

    const UsbDevice& usb() const override { return usb_; }

    int baudRate() const override { return settings_.baudRate; }
    void setBaudRate(int baudRate) override;
    void setParity(Parity parity) override;
    void setNumberOfStopBits(int bits) override;
    void setUsesRTSCTSFlowControl(bool uses) override;
    void setDelegate(ORSSerialPortDelegate* delegate) override { delegate_ = delegate; }

    // Called when the device has left the system: an open port closes and reports its removal, once.
    virtual void deviceLeft() = 0;
    // Whether the line has hung up since it was last opened: what is listed under the name now is another device.
    virtual bool hasHungUp() const { return false; }

protected:
    // Keeps the port alive until the event loop runs again, in case its last owner releases it during a callback.
    // Every handler that calls the delegate begins with one.
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

    // Takes bytes from the line, cut anywhere. Whole responses go to the delegate at once; an unfinished one when
    // nothing has come for the assembler's patience. Once the port is closed, responses are dropped.
    void receive(std::string_view bytes);
    void forgetTail();

    void tellOpened();
    void tellClosed();
    void tellRemoved();
    void tellStalled(bool stalled);
    void tellError(const SerialPortError& error);

private:
    template <class Change>
    void change(Change apply);

    std::string name_;
    std::string details_;
    UsbDevice usb_;
    LineSettings settings_;
    ORSSerialPortDelegate* delegate_ = nullptr;
    ResponseAssembler assembler_;
    QTimer patience_;
};

}  // namespace corvane
