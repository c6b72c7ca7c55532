// The serial port as the program needs it: a real one in qt/platform, a fake in tests.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/usb_device.h"

namespace corvane {

class ORSSerialPort;

enum class Parity { none, odd, even };

// Why a port could not be opened, or stopped working.
enum class SerialPortErrorKind {
    busy,        // another program has the port open
    staleLock,   // a program that has ended left its lock, which this user may not remove
    permission,  // the user may not open the device
    notFound,    // there is no such device
    gone,        // the device has been removed
    other,
};

struct SerialPortError {
    SerialPortErrorKind kind = SerialPortErrorKind::other;
    std::string text;        // the system's own words, e.g. "Permission denied"
    std::string path;        // the device, e.g. "/dev/ttyUSB0"
    std::string group;       // the group whose members may open the device, e.g. "dialout"; empty: none helps
    std::string owner = {};  // of the device, e.g. "root"; empty when unknown
    std::string lock = {};   // the file of a stale lock, e.g. "/run/lock/LCK..ttyUSB0"

    bool operator==(const SerialPortError&) const = default;
};

// The receiver of a port's reports. All calls come on the user-interface thread.
class ORSSerialPortDelegate {
public:
    virtual ~ORSSerialPortDelegate() = default;

    virtual void serialPortWasOpened(ORSSerialPort& port) = 0;
    virtual void serialPortWasClosed(ORSSerialPort& port) = 0;

    // Bytes from the line, e.g. "FA014250000;". A real port hands over one whole response at a time; the bytes are
    // valid only during the call.
    virtual void serialPortDidReceiveData(ORSSerialPort& port, std::string_view bytes) = 0;

    // The device has left the system. The port is closed already and reports nothing more.
    virtual void serialPortWasRemovedFromSystem(ORSSerialPort& port) = 0;

    virtual void serialPortDidEncounterError(ORSSerialPort& port, const SerialPortError& error) = 0;

    // The device has taken none of the waiting bytes for a second; with `stalled` false, it takes bytes again.
    virtual void serialPortDidStall(ORSSerialPort& /*port*/, bool /*stalled*/) {}
};

class ORSSerialPort {
public:
    virtual ~ORSSerialPort() = default;

    virtual const std::string& name() const = 0;         // as listed, e.g. "ttyUSB0"; unique in the list
    virtual const std::string& description() const = 0;  // as listed and as remembered; the same text as the name
    virtual const std::string& details() const = 0;      // for display: "USB serial adapter, /dev/ttyUSB0"

    virtual const UsbDevice& usb() const = 0;  // nothing known of one that is not on USB

    virtual int baudRate() const = 0;  // bits a second
    virtual void setBaudRate(int baudRate) = 0;
    virtual void setParity(Parity parity) = 0;
    virtual void setNumberOfStopBits(int bits) = 0;
    virtual void setUsesRTSCTSFlowControl(bool uses) = 0;

    virtual bool isOpen() const = 0;
    // Ends in serialPortWasOpened or serialPortDidEncounterError, at once or later. Does nothing if the port is open.
    virtual void open() = 0;
    // Ends in serialPortWasClosed when the port was open; otherwise does nothing. Bytes that were sent before still go
    // out, as far as the device takes them; a port that has stalled closes at once.
    virtual void close() = 0;

    // Hands all bytes to the line in one piece. They wait until the device takes them, up to a bound of the port's;
    // what is beyond is dropped. A port that is not open drops them; nothing is kept for later.
    virtual void sendData(std::string_view bytes) = 0;

    // The bytes that wait for the device. Once the port is closed: those that it never took.
    virtual std::size_t waitingBytes() const { return 0; }

    virtual void setDelegate(ORSSerialPortDelegate* delegate) = 0;  // or nullptr; does not own it
};

}  // namespace corvane
