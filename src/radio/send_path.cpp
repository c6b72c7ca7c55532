// Everything that leaves for the transceiver leaves here. Without a current port it is dropped without a word: the
// display follows the transceiver's own reports, so nothing is shown that did not happen.
#include "controller/serial_port_demo_controller.h"
#include "wire/cat_command.h"
#include "wire/utf8.h"

namespace corvane {

void SerialPortDemoController::sendCommand(std::string_view commands) {
    // A callback of the port may replace it.
    const std::shared_ptr<ORSSerialPort> port = link.serialPort;
    if (!port) return;
    const std::string text(commands);  // often the action's buffer, which a callback may fill anew
    forEachCommand(text, [&port](std::string_view command) {
        if (isUtf8(command)) port->sendData(command);
    });
}

void SerialPortDemoController::writeString(std::string_view commands) {
    const std::shared_ptr<ORSSerialPort> port = link.serialPort;
    if (port && isUtf8(commands)) port->sendData(commands);
}

void SerialPortDemoController::sendBox(Button&) {
    forEachCommand(display.sendTextField.stringValue(), [this](std::string_view command) { sendCommand(command); });
}

void SerialPortDemoController::returnPressedInTextField(TextField&) { display.sendButton.performClick(); }

}  // namespace corvane
