// The standing order to open a lost port again when it returns.
#include <algorithm>
#include <utility>

#include "radio/link.h"
#include "radio/link_messages.h"

namespace corvane {

bool isSamePort(const LostPort& lost, const ORSSerialPort& listed) {
    const UsbDevice& was = lost.usb;
    const UsbDevice& is = listed.usb();
    if (was.model.empty() || is.model.empty()) return lost.name == listed.name();
    if (was.model != is.model || was.serial != is.serial) return false;
    return lost.name == listed.name() || !is.serial.empty() || (!is.socket.empty() && was.socket == is.socket);
}

void Link::setReopensLostPort(bool reopens) {
    reopens_ = reopens;
    if (!reopens) stopWaiting();
}

void Link::waitForReturn(LostPort lost) {
    lost_ = std::move(lost);
    showMessage(waitingMessage(lost_->name));
    showStatus();
    voice_.speak(display_.linkStatusField.stringValue());
}

// What the order had planned finds another number.
void Link::stopWaiting() {
    ++order_;
    if (!std::exchange(lost_, std::nullopt)) return;
    showMessage({});
    showStatus();
}

std::shared_ptr<ORSSerialPort> Link::returnedPort() const {
    const SerialPorts& ports = around_.ports.availablePorts();
    const auto listed = std::ranges::find_if(ports, [&](const auto& port) { return isSamePort(*lost_, *port); });
    return listed == ports.end() ? nullptr : *listed;
}

// However often the port comes and goes meanwhile, the last return alone is followed.
void Link::followReturn() {
    if (!lost_) return;
    const bool back = returnedPort() != nullptr;
    if (back == lost_->back) return;
    lost_->back = back;
    lost_->attempts = 0;
    ++order_;
    showMessage(waitingMessage(lost_->name));
    showStatus();
    if (back) planAttempt();
}

void Link::planAttempt() {
    tasks_.after(attemptWaits.at(lost_->attempts), [this, order = ++order_] {
        if (order == order_) attemptOpening();
    });
}

void Link::attemptOpening() {
    const std::shared_ptr<ORSSerialPort> port = returnedPort();
    if (!port) return;
    if (chosenPort_ == lost_->name) chosenPort_ = port->description();
    setSerialPort(port);
    ++lost_->attempts;
    lost_->opening = true;
    openCurrentPort();
}

bool Link::triesAgain(const SerialPortError& error) {
    if (!lost_ || !std::exchange(lost_->opening, false)) return false;
    if (lost_->attempts == attemptWaits.size()) {
        ++order_;
        lost_.reset();
        return false;
    }
    showMessage(notYetMessage(lost_->name, error));
    planAttempt();
    return true;
}

void Link::noteOpened(const ORSSerialPort& port) {
    ++order_;
    if (!std::exchange(lost_, std::nullopt)) return;
    const std::string text = port.name() + " is open again";
    voice_.speak(text);
    deliverNotice("Serial Port Opened Again", port.name(), " was opened again.");
}

}  // namespace corvane
