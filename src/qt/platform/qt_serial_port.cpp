#include "qt/platform/qt_serial_port.h"

#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <QByteArray>
#include <QDeadlineTimer>
#include <cerrno>
#include <chrono>
#include <thread>
#include <utility>

#include "qt/platform/open_failure.h"

namespace corvane {

namespace {

constexpr std::chrono::milliseconds lastBytes{100};  // closing waits this long for the device to take a byte
constexpr std::chrono::seconds longestDrain{2};      // in all: a write of the memory channels takes 1.2 s

constexpr std::chrono::milliseconds progressInterval{100};
constexpr std::chrono::seconds stallTime{1};    // without a byte taken
constexpr std::size_t mostWaiting = 64 * 1024;  // bytes; a whole memory write has 4,600

// What a failed read or write means for the link.
enum class Fault { transient, gone, refused, other };

Fault faultOf(int code) {
    switch (code) {
        case EAGAIN:
        case EINTR:
            return Fault::transient;
        case EIO:
        case ENXIO:
        case ENODEV:
        case EBADF:
        case ENOENT:
            return Fault::gone;
        case EACCES:
        case EPERM:
            return Fault::refused;
        default:
            return Fault::other;
    }
}

QSerialPort::Parity qtParity(Parity parity) {
    switch (parity) {
        case Parity::odd:
            return QSerialPort::OddParity;
        case Parity::even:
            return QSerialPort::EvenParity;
        case Parity::none:
            break;
    }
    return QSerialPort::NoParity;
}

// DTR low, and RTS, too, unless flow control needs it: on some transceivers these lines key the transmitter. The system
// raises both while it opens a device, which no program can prevent; this ends it within a millisecond.
void lowerKeyingLines(int descriptor, bool rtsCts) {
    const int lines = TIOCM_DTR | (rtsCts ? 0 : TIOCM_RTS);
    ::ioctl(descriptor, TIOCMBIC, &lines);
}

// Bytes that the driver has taken but not sent.
int unsentBytes(int descriptor) {
    int count = 0;
    return ::ioctl(descriptor, TIOCOUTQ, &count) == 0 ? count : 0;
}

}  // namespace

QtSerialPort::QtSerialPort(std::string name, std::string details, std::string location, UsbDevice usb)
    : ListedPort(std::move(name), std::move(details), std::move(usb)), location_(std::move(location)) {
    line_.setPortName(QString::fromStdString(location_));
    QObject::connect(&line_, &QSerialPort::readyRead, &line_, [this] { readAll(); });
    QObject::connect(&line_, &QSerialPort::errorOccurred, &line_,
                     [this](QSerialPort::SerialPortError error) { failed(error); });
    progress_.setInterval(progressInterval);
    QObject::connect(&progress_, &QTimer::timeout, &progress_, [this] { watchProgress(); });
}

QtSerialPort::~QtSerialPort() {
    if (!open_) return;
    open_ = false;
    drain();
    shut();
}

void QtSerialPort::open() {
    if (open_) return;
    const KeepAlive alive(*this);
    forgetTail();
    applySettings();
    if (line_.open(QIODevice::ReadWrite)) {
        lowerKeyingLines(static_cast<int>(line_.handle()), settings().rtsCts);
        open_ = true;
        stalled_ = gone_ = false;
        neverTaken_ = 0;
        tellOpened();
    } else {
        tellError(openFailure(line_.error(), location_, line_.errorString().toStdString()));
    }
}

void QtSerialPort::close() {
    if (!open_) return;
    const KeepAlive alive(*this);
    open_ = false;  // first: errors and bytes that come while draining are ignored
    drain();
    shut();
    tellClosed();
}

void QtSerialPort::sendData(std::string_view bytes) {
    if (!open_) return;
    const KeepAlive alive(*this);
    if (waitingBytes() + bytes.size() > mostWaiting) return;
    // While bytes wait already, they go out when the device is ready for them.
    const bool idle = line_.bytesToWrite() == 0;
    line_.write(bytes.data(), static_cast<qint64>(bytes.size()));
    handedOver_ += bytes.size();
    if (idle) line_.flush();
    if (!open_ || progress_.isActive()) return;
    takenBefore_ = handedOver_ - waitingBytes();
    sinceProgress_.start();
    progress_.start();
}

std::size_t QtSerialPort::waitingBytes() const {
    if (!open_) return neverTaken_;
    return static_cast<std::size_t>(line_.bytesToWrite() + unsentBytes(static_cast<int>(line_.handle())));
}

void QtSerialPort::watchProgress() {
    const KeepAlive alive(*this);
    const std::size_t waiting = waitingBytes();
    const std::size_t taken = handedOver_ - waiting;
    if (waiting == 0) progress_.stop();
    if (std::exchange(takenBefore_, taken) != taken || waiting == 0) sinceProgress_.start();
    const bool stalled = waiting > 0 && sinceProgress_.hasExpired(std::chrono::milliseconds(stallTime).count());
    if (std::exchange(stalled_, stalled) != stalled) tellStalled(stalled);
}

void QtSerialPort::deviceLeft() {
    if (!open_) return;
    const KeepAlive alive(*this);
    neverTaken_ = waitingBytes();
    shut();
    tellRemoved();
}

void QtSerialPort::settingsChanged() {
    if (open_) applySettings();
}

void QtSerialPort::applySettings() {
    line_.setBaudRate(settings().baudRate);
    line_.setDataBits(QSerialPort::Data8);
    line_.setParity(qtParity(settings().parity));
    line_.setStopBits(settings().stopBits == 2 ? QSerialPort::TwoStop : QSerialPort::OneStop);
    line_.setFlowControl(settings().rtsCts ? QSerialPort::HardwareControl : QSerialPort::NoFlowControl);
}

void QtSerialPort::readAll() {
    if (!open_) return;
    const KeepAlive alive(*this);
    const QByteArray bytes = line_.readAll();
    receive({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

// A line that has hung up repeats its error in a busy loop until it is closed. A full driver is no fault: Qt goes on
// when the driver is ready again.
void QtSerialPort::failed(QSerialPort::SerialPortError error) {
    const int code = errno;  // of the call that failed
    if (!open_ || error == QSerialPort::NoError || error == QSerialPort::TimeoutError) return;
    const KeepAlive alive(*this);
    const Fault fault = hungUp() ? Fault::gone : faultOf(code);
    if (fault == Fault::transient && line_.bytesToWrite() > 0) return line_.clearError();
    const std::string words = line_.errorString().toStdString();
    if (fault != Fault::gone && error != QSerialPort::ReadError && error != QSerialPort::ResourceError)
        return tellError({SerialPortErrorKind::other, words, location_, {}});
    neverTaken_ = waitingBytes();
    shut();
    gone_ = fault == Fault::gone;
    if (gone_) return tellRemoved();
    const auto kind = fault == Fault::refused ? SerialPortErrorKind::permission : SerialPortErrorKind::other;
    tellError({kind, words, location_, {}});
    if (!open_) tellClosed();
}

bool QtSerialPort::hungUp() const {
    pollfd line{static_cast<int>(line_.handle()), POLLIN, 0};
    const bool dead = ::poll(&line, 1, 0) > 0 && (line.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0;
    return dead || ::access(location_.c_str(), F_OK) != 0;
}

// Waits for the driver's bytes as well as for our own buffer, as long as the device keeps taking bytes. The rest is
// thrown away: the system would delay closing for half a minute.
void QtSerialPort::drain() {
    const int descriptor = static_cast<int>(line_.handle());
    const auto left = [&] { return line_.bytesToWrite() + unsentBytes(descriptor); };
    const QDeadlineTimer end(longestDrain);
    QDeadlineTimer patience(lastBytes);
    for (qint64 before = left(); before > 0 && !stalled_ && !patience.hasExpired() && !end.hasExpired();) {
        if (line_.bytesToWrite() == 0 || !line_.waitForBytesWritten(1))
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        const qint64 now = left();
        if (now < before) patience.setRemainingTime(lastBytes);
        before = now;
    }
    neverTaken_ = static_cast<std::size_t>(left());
    if (neverTaken_ > 0) line_.clear(QSerialPort::Output);
}

void QtSerialPort::shut() {
    open_ = false;
    stalled_ = false;
    progress_.stop();
    line_.close();
    forgetTail();
}

}  // namespace corvane
