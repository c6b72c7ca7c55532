// Everything for the transceiver is sent from here.
#include "radio/link.h"

#include <utility>

#include "wire/cat_command.h"
#include "wire/utf8.h"

namespace corvane {

Link::Link(Display& display, Voice& voice, const Surroundings& surroundings)
    : display_(display), voice_(voice), around_(surroundings), tasks_(surroundings.scheduler) {
    showStatus();
}

Link::~Link() {
    // The window may be gone already: the port's report of its closing cannot be shown any more.
    if (const auto port = std::exchange(serialPort_, nullptr)) {
        port->setDelegate(nullptr);
        port->close();
    }
}

void Link::sendCommand(std::string_view commands) {
    // A callback of the port may replace serialPort_.
    const std::shared_ptr<ORSSerialPort> port = serialPort_;
    if (!port) return;
    const std::string text(commands);  // often cmd_, which a callback may overwrite
    forEachCommand(text, [this, &port](std::string_view command) {
        if (!isUtf8(command)) return;
        hand(*port, command);
        onSent(command);
    });
    askWhetherOn();
}

void Link::writeString(std::string_view commands) {
    const std::shared_ptr<ORSSerialPort> port = serialPort_;
    if (port && isUtf8(commands)) hand(*port, commands);
    askWhetherOn();
}

void Link::hand(ORSSerialPort& port, std::string_view bytes) {
    if (port.isOpen()) record_.add(LineDirection::sent, bytes, tasks_.now());
    port.sendData(bytes);
}

void Link::noteReceived(std::string_view bytes) { record_.add(LineDirection::received, bytes, tasks_.now()); }

// An action that built nothing must not send the previous command again.
void Link::send(std::string command) {
    if (command.empty()) return;
    cmd_ = std::move(command);
    sendCommand(cmd_);
}

void Link::write(std::string command) {
    if (command.empty()) return;
    cmd_ = std::move(command);
    writeString(cmd_);
}

void Link::sendBox(Button&) {
    forEachCommand(display_.sendTextField.stringValue(), [this](std::string_view command) { sendCommand(command); });
}

void Link::returnPressedInTextField(TextField&) { display_.sendButton.performClick(); }

}  // namespace corvane
