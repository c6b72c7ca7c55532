// Everything that leaves for the transceiver leaves here.
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
    // The window may have gone before: nobody is left to show what the port says of its closing.
    if (const auto port = std::exchange(serialPort_, nullptr)) {
        port->setDelegate(nullptr);
        port->close();
    }
}

void Link::sendCommand(std::string_view commands) {
    // A callback of the port may replace it.
    const std::shared_ptr<ORSSerialPort> port = serialPort_;
    if (!port) return;
    const std::string text(commands);  // often the action's buffer, which a callback may fill anew
    forEachCommand(text, [&port](std::string_view command) {
        if (isUtf8(command)) port->sendData(command);
    });
}

void Link::writeString(std::string_view commands) {
    const std::shared_ptr<ORSSerialPort> port = serialPort_;
    if (port && isUtf8(commands)) port->sendData(commands);
}

// An action that built nothing sends nothing; above all not the command before it.
void Link::send(std::string command) {
    if (command.empty()) return;
    cmd_ = std::move(command);
    sendCommand(cmd_);
}

void Link::write(std::string command) {
    cmd_ = std::move(command);
    writeString(cmd_);
}

void Link::sendBox(Button&) {
    forEachCommand(display_.sendTextField.stringValue(), [this](std::string_view command) { sendCommand(command); });
}

void Link::returnPressedInTextField(TextField&) { display_.sendButton.performClick(); }

}  // namespace corvane
