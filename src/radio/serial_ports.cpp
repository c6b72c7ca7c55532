// Choosing, opening and closing a port, and ports that come and go.
#include <algorithm>
#include <utility>

#include "radio/link.h"
#include "radio/link_messages.h"

namespace corvane {

using namespace std::chrono_literals;

void Link::setSerialPort(std::shared_ptr<ORSSerialPort> port) {
    if (port == serialPort_) return;
    if (isOpen()) onClosing();
    const std::shared_ptr<ORSSerialPort> previous = std::exchange(serialPort_, std::move(port));
    if (previous) {
        previous->close();
        previous->setDelegate(nullptr);
    }
    if (serialPort_) {
        serialPort_->setDelegate(&around_.reports);
        waitingPort_ = serialPort_;
    }
    display_.portDetailsField.setStringValue(serialPort_ ? serialPort_->details() : std::string{});
    fillPopUps();
    showStatus();
}

void Link::choosePort(PopUpButton& sender) {
    stopWaiting();
    chosenPort_ = sender.titleOfSelectedItem();
    useListedPort(static_cast<std::size_t>(sender.indexOfSelectedItem()));
}

void Link::useListedPort(std::size_t index) {
    const SerialPorts& ports = around_.ports.availablePorts();
    if (index >= ports.size() || ports[index] == serialPort_) return;
    if (!lost_) showMessage({});
    setSerialPort(ports[index]);
}

void Link::chooseBaudRate(PopUpButton& sender) {
    const auto index = static_cast<std::size_t>(sender.indexOfSelectedItem());
    if (serialPort_ && index < availableBaudRates_.size()) serialPort_->setBaudRate(availableBaudRates_[index]);
}

void Link::restorePort() {
    const std::string baudRate = around_.settings.text("defaultBaud").value_or("");
    if (!baudRate.empty()) display_.BaudPopUpButton.selectItemWithTitle(baudRate);
    if (isOpen()) return;
    const SerialPorts& ports = around_.ports.availablePorts();
    for (const std::string& port : {chosenPort_, around_.settings.text("defaultPort").value_or("")}) {
        const auto listed = std::ranges::find(ports, port, &ORSSerialPort::description);
        if (listed == ports.end()) continue;
        display_.PortPopUpButton.selectItemWithTitle(port);
        return useListedPort(static_cast<std::size_t>(listed - ports.begin()));
    }
}

void Link::suggestPort() {
    const bool remembered = !around_.settings.text("defaultPort").value_or("").empty();
    if (!serialPort_ && !remembered) setSerialPort(around_.ports.suggestedPort());
}

void Link::noteAnswer() {
    if (std::exchange(answered_, true)) return;
    showStatus();
}

void Link::openOrClosePort(Button&) {
    const std::shared_ptr<ORSSerialPort> port = serialPort_;
    stopWaiting();
    if (!port) return;
    if (port->isOpen()) {
        onClosing();
        sendCommand("AI0;");
        port->close();
        onReady(false);
        return;
    }
    showMessage({});
    openCurrentPort();
}

void Link::openCurrentPort() {
    const std::shared_ptr<ORSSerialPort> port = serialPort_;
    chooseBaudRate(display_.BaudPopUpButton);
    port->setParity(Parity::none);
    port->setNumberOfStopBits(1);
    port->setUsesRTSCTSFlowControl(true);
    port->open();
    onReady(port->isOpen());
}

void Link::serialPortWasOpened(ORSSerialPort& port) {
    display_.openCloseButton.setTitle("Connected");
    display_.openCloseButton.setBezelColor(Color::green);
    onReady(true);
    around_.settings.setText("defaultPort", port.description());
    around_.settings.setText("defaultBaud", std::to_string(port.baudRate()));
    voice_.playSound("Seatbelts");
    answered_ = synchronised_ = inStep_ = switchedOff_ = false;
    noteOpened(port);
    showMessage({});
    showStatus();
    startSession();
}

void Link::serialPortWasClosed(ORSSerialPort& port) {
    ++session_;
    serialPortDidStall(port, false);
    clearMessage(switchedOffMessage);
    display_.openCloseButton.setTitle("Connect");
    display_.openCloseButton.setBezelColor(Color::red);
    onReady(false);
    onClosed();
    voice_.playSystemSound("Bottle");
    showStatus();
}

void Link::serialPortWasRemovedFromSystem(ORSSerialPort& port) {
    const std::string message = linkLostMessage(port.name());
    LostPort lost{port.name(), port.usb()};
    ++session_;
    setSerialPort(nullptr);
    display_.openCloseButton.setTitle("Connect");
    onReady(false);
    onClosed();
    showMessage(message);
    if (reopens_) waitForReturn(std::move(lost));
}

void Link::serialPortDidEncounterError(ORSSerialPort& port, const SerialPortError& error) {
    around_.log.line("SerialPort " + port.description() + " encountered an error: " + error.text);
    if (triesAgain(error)) return;
    voice_.playSystemSound("Frog");
    display_.mainTab.selectItem(Display::stationPage);
    onReady(port.isOpen());
    showMessage(linkMessage(port.name(), error));
    showStatus();
}

void Link::serialPortDidStall(ORSSerialPort& port, bool stalled) {
    const std::string message = linkStalledMessage(port.name());
    stalled ? showMessage(message) : clearMessage(message);
}

void Link::serialPortsWereConnected(const SerialPorts& ports) {
    listPortsInLog("Ports were connected: ", ports);
    for (const auto& port : ports) {
        deliverNotice("Serial Port Connected", port->name(), " was connected to your Mac.");
        display_.announcements.say(port->name() + " is plugged in");
    }
    fillPopUps();
    followReturn();
}

void Link::serialPortsWereDisconnected(const SerialPorts& ports) {
    listPortsInLog("Ports were disconnected: ", ports);
    for (const auto& port : ports)
        deliverNotice("Serial Port Disconnected", port->name(), " was disconnected from your Mac.");
    // An open port reports its own removal; a closed one must be dropped here.
    if (std::ranges::find(ports, serialPort_) != ports.end() && !serialPort_->isOpen()) setSerialPort(nullptr);
    fillPopUps();
    followReturn();
}

bool Link::userNotificationCenterShouldPresentNotification() const { return true; }

void Link::userNotificationCenterDidDeliverNotification(NotificationId id) {
    tasks_.after(3s, [this, id] { around_.notices.removeDelivered(id); });
}

void Link::deliverNotice(std::string_view title, std::string_view portName, std::string_view what) {
    if (!userNotificationCenterShouldPresentNotification()) return;
    UserNotification notice;
    notice.title = title;
    notice.informativeText = std::string("Serial Port ").append(portName).append(what);
    around_.notices.deliver(
        notice, tasks_.guarded([this](NotificationId id) { userNotificationCenterDidDeliverNotification(id); }));
}

void Link::listPortsInLog(std::string_view what, const SerialPorts& ports) {
    std::string line(what);
    for (const auto& port : ports) line.append(port == ports.front() ? "" : ", ").append(port->description());
    around_.log.line(line);
}

void Link::fillPopUps() {
    std::vector<std::string> titles;
    for (const auto& port : around_.ports.availablePorts()) titles.push_back(port->description());
    if (titles != display_.PortPopUpButton.entries()) display_.PortPopUpButton.setEntries(std::move(titles));
    if (serialPort_)
        display_.PortPopUpButton.selectItemWithTitle(serialPort_->description());
    else
        display_.PortPopUpButton.selectItem(PopUpButton::noSelection);

    std::vector<std::string> rates;
    for (const int rate : availableBaudRates_) rates.push_back(std::to_string(rate));
    if (rates != display_.BaudPopUpButton.entries()) display_.BaudPopUpButton.setEntries(std::move(rates));
    if (display_.BaudPopUpButton.indexOfSelectedItem() == PopUpButton::noSelection)
        display_.BaudPopUpButton.selectItem(0);
}

void Link::showStatus() {
    const bool open = isOpen();
    display_.linkStatusField.setTextColor(open ? Color::green : Color::none);
    if (!open && lost_)
        display_.linkStatusField.setStringValue(lost_->back ? "Opening " + lost_->name + " again"
                                                            : "Waiting for " + lost_->name + " to return");
    else if (!open)
        display_.linkStatusField.setStringValue("Not connected");
    else if (switchedOff_)
        display_.linkStatusField.setStringValue(serialPort_->name() + ": the transceiver is switched off");
    else
        display_.linkStatusField.setStringValue(serialPort_->name() +
                                                (answered_ ? ": connected" : ": waiting for the transceiver"));
}

void Link::clearMessage(std::string_view message) {
    if (display_.linkMessageField.stringValue() == message) showMessage({});
}

void Link::showMessage(std::string_view message) { display_.linkMessageField.setStringValue(message); }

}  // namespace corvane
