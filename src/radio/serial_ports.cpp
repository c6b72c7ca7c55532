// The choice of port, its opening and closing, and ports that come and go.
#include <algorithm>
#include <utility>

#include "controller/serial_port_demo_controller.h"
#include "radio/link_messages.h"

namespace corvane {

using namespace std::chrono_literals;

void SerialPortDemoController::setSerialPort(std::shared_ptr<ORSSerialPort> port) {
    if (port == link.serialPort) return;
    const std::shared_ptr<ORSSerialPort> previous = std::exchange(link.serialPort, std::move(port));
    if (previous) {
        previous->close();
        previous->setDelegate(nullptr);
    }
    if (link.serialPort) link.serialPort->setDelegate(this);
    display.portDetailsField.setStringValue(link.serialPort ? link.serialPort->details() : std::string{});
    fillPortPopUp();
    showLinkStatus();
}

void SerialPortDemoController::choosePort(PopUpButton& sender) {
    const SerialPorts& ports = serialPortManager.availablePorts();
    const auto index = static_cast<std::size_t>(sender.indexOfSelectedItem());
    if (index >= ports.size() || ports[index] == link.serialPort) return;
    showLinkMessage({});
    setSerialPort(ports[index]);
}

void SerialPortDemoController::chooseBaudRate(PopUpButton& sender) {
    const auto index = static_cast<std::size_t>(sender.indexOfSelectedItem());
    if (link.serialPort && index < link.availableBaudRates.size())
        link.serialPort->setBaudRate(link.availableBaudRates[index]);
}

void SerialPortDemoController::openOrClosePort(Button&) {
    const std::shared_ptr<ORSSerialPort> port = link.serialPort;
    if (!port) return;
    if (port->isOpen()) {
        sendCommand("AI0;");
        port->close();
        setMemoryKeysEnabled(false);
        return;
    }
    showLinkMessage({});
    chooseBaudRate(display.BaudPopUpButton);
    port->setParity(Parity::none);
    port->setNumberOfStopBits(1);
    port->setUsesRTSCTSFlowControl(true);
    port->open();
    setMemoryKeysEnabled(port->isOpen());
}

void SerialPortDemoController::serialPortWasOpened(ORSSerialPort& port) {
    display.openCloseButton.setTitle("Connected");
    display.openCloseButton.setBezelColor(Color::green);
    setMemoryKeysEnabled(true);
    userDefaults.setText("defaultPort", port.description());
    userDefaults.setText("defaultBaud", std::to_string(port.baudRate()));
    playSound("Seatbelts");
    link.answered = false;
    showLinkMessage({});
    showLinkStatus();
    startSession();
}

void SerialPortDemoController::serialPortWasClosed(ORSSerialPort&) {
    ++link.session;
    display.openCloseButton.setTitle("Connect");
    display.openCloseButton.setBezelColor(Color::red);
    setMemoryKeysEnabled(false);
    memoryReadLostLink();
    menuReadEnded(": stopped, the link is closed.");
    playSystemSound("Bottle");
    showLinkStatus();
}

void SerialPortDemoController::serialPortWasRemovedFromSystem(ORSSerialPort& port) {
    const std::string message = linkLostMessage(port.name());
    ++link.session;
    setSerialPort(nullptr);
    display.openCloseButton.setTitle("Connect");
    setMemoryKeysEnabled(false);
    memoryReadLostLink();
    menuReadEnded(": stopped, the link is closed.");
    showLinkMessage(message);
}

void SerialPortDemoController::serialPortDidEncounterError(ORSSerialPort& port, const SerialPortError& error) {
    platform_.log.line("SerialPort " + port.description() + " encountered an error: " + error.text);
    playSystemSound("Frog");
    display.mainTab.selectItem(Display::stationPage);
    setMemoryKeysEnabled(port.isOpen());
    showLinkMessage(linkMessage(port.name(), error));
    showLinkStatus();
}

void SerialPortDemoController::serialPortsWereConnected(const SerialPorts& ports) {
    listPortsInLog("Ports were connected: ", ports);
    for (const auto& port : ports) deliverNotice("Serial Port Connected", port->name(), " was connected to your Mac.");
    fillPortPopUp();
    restoreSettings();
}

void SerialPortDemoController::serialPortsWereDisconnected(const SerialPorts& ports) {
    listPortsInLog("Ports were disconnected: ", ports);
    for (const auto& port : ports)
        deliverNotice("Serial Port Disconnected", port->name(), " was disconnected from your Mac.");
    // A port that leaves the list without having been open has nobody else to take it out of use.
    if (std::ranges::find(ports, link.serialPort) != ports.end() && !link.serialPort->isOpen()) setSerialPort(nullptr);
    fillPortPopUp();
}

bool SerialPortDemoController::userNotificationCenterShouldPresentNotification() const { return true; }

void SerialPortDemoController::userNotificationCenterDidDeliverNotification(NotificationId id) {
    later(3s, [this, id] { platform_.notificationCenter.removeDelivered(id); });
}

void SerialPortDemoController::deliverNotice(std::string_view title, std::string_view portName, std::string_view what) {
    if (!userNotificationCenterShouldPresentNotification()) return;
    UserNotification notice;
    notice.title = title;
    notice.informativeText = std::string("Serial Port ").append(portName).append(what);
    platform_.notificationCenter.deliver(notice, [this, alive = std::weak_ptr(alive_)](NotificationId id) {
        if (!alive.expired()) userNotificationCenterDidDeliverNotification(id);
    });
}

void SerialPortDemoController::listPortsInLog(std::string_view what, const SerialPorts& ports) {
    std::string line(what);
    for (const auto& port : ports) line.append(port == ports.front() ? "" : ", ").append(port->description());
    platform_.log.line(line);
}

void SerialPortDemoController::fillPortPopUp() {
    std::vector<std::string> titles;
    for (const auto& port : serialPortManager.availablePorts()) titles.push_back(port->description());
    if (titles != display.PortPopUpButton.entries()) display.PortPopUpButton.setEntries(std::move(titles));
    if (link.serialPort)
        display.PortPopUpButton.selectItemWithTitle(link.serialPort->description());
    else
        display.PortPopUpButton.selectItem(PopUpButton::noSelection);

    std::vector<std::string> rates;
    for (const int rate : link.availableBaudRates) rates.push_back(std::to_string(rate));
    if (rates != display.BaudPopUpButton.entries()) display.BaudPopUpButton.setEntries(std::move(rates));
    if (display.BaudPopUpButton.indexOfSelectedItem() == PopUpButton::noSelection)
        display.BaudPopUpButton.selectItem(0);
}

void SerialPortDemoController::showLinkStatus() {
    const bool open = link.serialPort && link.serialPort->isOpen();
    display.linkStatusField.setTextColor(open ? Color::green : Color::none);
    if (!open)
        display.linkStatusField.setStringValue("Not connected");
    else
        display.linkStatusField.setStringValue(link.serialPort->name() +
                                               (link.answered ? ": connected" : ": waiting for the transceiver"));
}

void SerialPortDemoController::showLinkMessage(std::string_view message) {
    display.linkMessageField.setStringValue(message);
}

}  // namespace corvane
