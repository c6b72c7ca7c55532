// A serial port of the system.
#pragma once

#include <QElapsedTimer>
#include <QSerialPort>
#include <QTimer>

#include <string>

#include "qt/platform/listed_port.h"

namespace corvane {

// The device at `location`, e.g. "/dev/ttyUSB0", a symbolic link or a pseudo-terminal, listed as `name`. Opening does
// not wait. Closing waits until the bytes written before have gone out, 2 s at most; it gives up sooner when the device
// takes no byte for 100 ms. A device that takes none for a second is reported as stalled; its bytes wait, 64 KiB at
// most. A device that hangs up is reported as removed, once; the port is closed by then. Another failure to read or
// write is reported as an error and closes the port.
class QtSerialPort final : public ListedPort {
public:
    QtSerialPort(std::string name, std::string details, std::string location, UsbDevice usb = {});
    ~QtSerialPort() override;

    bool isOpen() const override { return open_; }
    void open() override;
    void close() override;
    void sendData(std::string_view bytes) override;
    void deviceLeft() override;
    bool hasHungUp() const override { return gone_; }
    std::size_t waitingBytes() const override;

protected:
    void settingsChanged() override;

private:
    void applySettings();
    void readAll();
    void failed(QSerialPort::SerialPortError error);
    void watchProgress();
    bool hungUp() const;
    void drain();
    void shut();

    std::string location_;
    QSerialPort line_;
    bool open_ = false;            // as the delegate knows it; line_ may still be draining
    QTimer progress_;              // runs while bytes wait
    QElapsedTimer sinceProgress_;  // since the device last took a byte
    std::size_t handedOver_ = 0;   // bytes, in all
    std::size_t takenBefore_ = 0;  // of these, what the device had taken at the last look
    std::size_t neverTaken_ = 0;   // bytes that waited when the port closed
    bool stalled_ = false;
    bool gone_ = false;
};

}  // namespace corvane
