// The link to the transceiver: choosing, opening and closing a port, sending, and the steps after an opening.
//
//   sending   commands to the transceiver           radio/link.cpp
//   ports     choosing, opening, coming and going   radio/serial_ports.cpp
//   return    a lost port that comes back           radio/port_return.cpp
//   session   the steps after a port opened         radio/session_start.cpp
//   power     switched off, and on again            radio/power_cycle.cpp
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/voice.h"
#include "display/display.h"
#include "platform/log.h"
#include "platform/notification_center.h"
#include "platform/serial_port_manager.h"
#include "platform/settings_store.h"
#include "platform/tasks.h"
#include "radio/line_record.h"
#include "radio/lost_port.h"

namespace corvane {

// Reads everything that the display shows and switches auto information on, in one write of 150 bytes.
inline constexpr std::string_view synchronisationString =
    "PS;AI1;AI;AG0;VS1;VS0;IF;OI;VS;SV;MD0;NB0;NR0;PC;FA;FB;VS0;BC0;BI;PA0;BP00;CO00;GT0;RA0;RF0;SF0;SF1;SS00;SS01;"
    "SS02;"
    "SS03;SS04;SS05;SS06;MS;EX040101;SV;";
static_assert(synchronisationString.size() == 150);

// Puts side B on memory channel 002, then side A on memory channel 001.
inline constexpr std::string_view memorySlotString = "VS1;MC002;MC;MW002;VM;VS0;MC001;MC;MW001;VM;";
static_assert(memorySlotString.size() == 44);

class Link {
public:
    // What the link uses of the system. A port reports to `reports`, the controller, which calls the operations
    // "serialPort..." below.
    struct Surroundings {
        ORSSerialPortManager& ports;
        SettingsStore& settings;
        NotificationCenter& notices;
        Log& log;
        Scheduler& scheduler;
        ORSSerialPortDelegate& reports;
    };

    Link(Display& display, Voice& voice, const Surroundings& surroundings);
    ~Link();  // closes the port

    // Called by the link:
    std::function<void(bool ready)> onReady = [](bool) {};  // whether commands would reach the transceiver
    std::function<void()> onClosing = [] {};                // the port is about to be closed: commands still leave
    std::function<void()> onClosed = [] {};                 // the session is over: the port was closed, or has gone
    std::function<void(std::string_view command)> onSent = [](std::string_view) {};  // after each, e.g. "AG0000;"
    std::function<void()> onMemoryReadDue = [] {};  // a step of the opening: read the memory channels
    std::function<void()> onSwitchedOff = [] {};    // the transceiver says so; the port stays open

    // --- sending. Without a current port everything is dropped silently, and so are bytes that are not UTF-8.
    void sendCommand(std::string_view commands);  // one write for each command in the text
    void writeString(std::string_view commands);  // the whole text in one write
    // Both keep the command as `cmd`; an empty one does nothing. `send` writes as sendCommand does: front panel,
    // pop-ups, presets, POTA. `write` writes as writeString does: typed texts and frequencies, the other lists.
    void send(std::string command);
    void write(std::string command);
    void sendBox(Button& sender);                      // sends the text of the raw-command box
    void returnPressedInTextField(TextField& sender);  // Return in the raw-command box
    // The command that was built last, e.g. "BS05;BI1;". A step key sends it again with break-in on behind it.
    const std::string& cmd() const { return cmd_; }
    void build(std::string command) { cmd_ = std::move(command); }

    // --- ports
    void setSerialPort(std::shared_ptr<ORSSerialPort> port);  // makes it the current port; nullptr: none
    const std::shared_ptr<ORSSerialPort>& serialPort() const { return serialPort_; }
    bool isOpen() const { return serialPort_ && serialPort_->isOpen(); }
    // The bytes that wait for the transceiver; after a closing, those that it never took.
    std::size_t waitingBytes() const { return waitingPort_ ? waitingPort_->waitingBytes() : 0; }
    const std::vector<int>& availableBaudRates() const { return availableBaudRates_; }
    void choosePort(PopUpButton& sender);
    void chooseBaudRate(PopUpButton& sender);
    void openOrClosePort(Button& sender);
    // Chooses the port that the operator chose last, in this run or the one before, unless a port is open.
    void restorePort();
    void suggestPort();  // chooses a port while none is remembered
    // Whether a port that is lost while open is opened again when it returns. What the operator does to a port ends the
    // waiting for one.
    void setReopensLostPort(bool reopens);
    void serialPortWasOpened(ORSSerialPort& port);
    void serialPortWasClosed(ORSSerialPort& port);
    void serialPortWasRemovedFromSystem(ORSSerialPort& port);
    void serialPortDidEncounterError(ORSSerialPort& port, const SerialPortError& error);
    void serialPortDidStall(ORSSerialPort& port, bool stalled);
    void serialPortsWereConnected(const SerialPorts& ports);
    void serialPortsWereDisconnected(const SerialPorts& ports);
    void noteReceived(std::string_view bytes);     // any bytes, for the record
    LineRecord& record() { return record_; }       // what has gone over the line
    void noteAnswer();                             // the transceiver has sent something
    void noteResponse(std::string_view response);  // each that is understood, e.g. "PS0"
    void fillPopUps();                             // the ports and the speeds
    void showMessage(std::string_view message);    // in the line below the frequencies

    // --- session: its number grows with every opening and closing, which shows whether a step is left over from an
    // earlier one
    const std::string& syncRadioCmd() const { return syncRadioCmd_; }
    unsigned session() const { return session_; }

private:
    void hand(ORSSerialPort& port, std::string_view bytes);
    void showStatus();
    void clearMessage(std::string_view message);  // if it is the one that stands there
    void useListedPort(std::size_t index);        // of availablePorts()
    void openCurrentPort();
    void waitForReturn(LostPort lost);
    void stopWaiting();
    std::shared_ptr<ORSSerialPort> returnedPort() const;
    void followReturn();  // the list of ports has changed
    void planAttempt();
    void attemptOpening();
    bool triesAgain(const SerialPortError& error);  // after a failed attempt
    void noteOpened(const ORSSerialPort& port);
    void startSession();
    void afterOpening(Scheduler::Duration delay, std::function<void()> step);
    void askWhetherOn();
    void catchUp();
    void setUpMemorySlots();
    void synchronise();
    bool userNotificationCenterShouldPresentNotification() const;  // also while the program is in front
    void userNotificationCenterDidDeliverNotification(NotificationId id);
    void deliverNotice(std::string_view title, std::string_view portName, std::string_view what);
    void listPortsInLog(std::string_view what, const SerialPorts& ports);

    Display& display_;
    Voice& voice_;
    Surroundings around_;
    Tasks tasks_;
    std::vector<int> availableBaudRates_{38400};  // bits a second
    std::shared_ptr<ORSSerialPort> serialPort_;   // the current port, or none
    std::shared_ptr<ORSSerialPort> waitingPort_;  // the current port, or the last one
    std::string chosenPort_;                      // the description of the one that the operator chose in this run
    LineRecord record_;
    std::string cmd_;
    const std::string syncRadioCmd_{synchronisationString};
    unsigned session_ = 0;
    bool reopens_ = false;
    std::optional<LostPort> lost_;  // waited for
    unsigned order_ = 0;            // changes whenever a planned attempt is no longer wanted
    bool synchronised_ = false;     // the synchronisation string of this session has been sent
    bool inStep_ = false;           // and answered
    bool switchedOff_ = false;
    unsigned question_ = 0;  // counts what was sent while it is switched off
    bool answered_ = false;  // whether anything has come from the transceiver since the port was opened
};

}  // namespace corvane
