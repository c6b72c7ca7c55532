// What the program knows of the link to the transceiver.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/serial_port.h"

namespace corvane {

// Reads everything that the display shows and switches auto information on, in one write of 150 bytes.
inline constexpr std::string_view synchronisationString =
    "PS;AI1;AI;AG0;VS1;VS0;IF;OI;VS;SV;MD0;NB0;NR0;PC;FA;FB;VS0;BC0;BI;PA0;BP00;CO00;GT0;RA0;RF0;SF0;SF1;SS00;SS01;"
    "SS02;"
    "SS03;SS04;SS05;SS06;MS;EX040101;SV;";
static_assert(synchronisationString.size() == 150);

// Side B on memory channel 002, then side A on memory channel 001.
inline constexpr std::string_view memorySlotString = "VS1;MC002;MC;MW002;VM;VS0;MC001;MC;MW001;VM;";
static_assert(memorySlotString.size() == 44);

struct LinkState {
    std::vector<int> availableBaudRates{38400};  // bits a second
    std::shared_ptr<ORSSerialPort> serialPort;   // the current port, or none
    std::string cmd;                             // what the last action built; no meaning after it was sent
    std::string syncRadioCmd{synchronisationString};
    int vqSignal = 0;  // the last six digits of the last meter report: meter reading times 1000
    unsigned session =
        0;  // grows with every opening and closing, so that a step left over from an earlier one is known
    int vqTimerStarted = 0;  // 1 from when what runs as long as the program does has been started
    bool answered = false;   // whether anything has come from the transceiver since the port was opened
};

}  // namespace corvane
