#include "qt/platform/listed_port.h"

#include <utility>

namespace corvane {

ListedPort::KeepAlive::~KeepAlive() {
    if (port_ && port_.use_count() == 1) QTimer::singleShot(0, [last = std::move(port_)] {});
}

ListedPort::ListedPort(std::string name, std::string details, UsbDevice usb)
    : name_(std::move(name)),
      details_(std::move(details)),
      usb_(std::move(usb)),
      assembler_([this](std::string_view response) {
          if (isOpen() && delegate_ != nullptr) delegate_->serialPortDidReceiveData(*this, response);
      }) {
    patience_.setSingleShot(true);
    patience_.setInterval(ResponseAssembler::patience);
    QObject::connect(&patience_, &QTimer::timeout, &patience_, [this] {
        const KeepAlive alive(*this);
        assembler_.expire();
    });
}

template <class Change>
void ListedPort::change(Change apply) {
    const LineSettings before = settings_;
    apply(settings_);
    if (settings_ != before) settingsChanged();
}

void ListedPort::setBaudRate(int baudRate) {
    change([&](LineSettings& line) { line.baudRate = baudRate; });
}

void ListedPort::setParity(Parity parity) {
    change([&](LineSettings& line) { line.parity = parity; });
}

void ListedPort::setNumberOfStopBits(int bits) {
    change([&](LineSettings& line) { line.stopBits = bits; });
}

void ListedPort::setUsesRTSCTSFlowControl(bool uses) {
    change([&](LineSettings& line) { line.rtsCts = uses; });
}

void ListedPort::receive(std::string_view bytes) {
    assembler_.feed(bytes);
    if (assembler_.holdsTail()) {
        patience_.start();
    } else {
        patience_.stop();
    }
}

void ListedPort::forgetTail() {
    patience_.stop();
    assembler_.clear();
}

void ListedPort::tellOpened() {
    if (delegate_ != nullptr) delegate_->serialPortWasOpened(*this);
}

void ListedPort::tellClosed() {
    if (delegate_ != nullptr) delegate_->serialPortWasClosed(*this);
}

void ListedPort::tellRemoved() {
    if (delegate_ != nullptr) delegate_->serialPortWasRemovedFromSystem(*this);
}

void ListedPort::tellStalled(bool stalled) {
    if (delegate_ != nullptr) delegate_->serialPortDidStall(*this, stalled);
}

void ListedPort::tellError(const SerialPortError& error) {
    if (delegate_ != nullptr) delegate_->serialPortDidEncounterError(*this, error);
}

}  // namespace corvane
