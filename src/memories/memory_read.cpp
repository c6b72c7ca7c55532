// Reading the memory channels begins with a request for the first one.
#include "controller/serial_port_demo_controller.h"

namespace corvane {

void SerialPortDemoController::getMemoriesFromRadio(Button&) { startMemoryRead(); }

void SerialPortDemoController::startMemoryRead() {
    memories.vqMemArray.fill({});
    memories.vqMemRead = "run";
    memories.vqTagRead = "0";
    memories.vqMemReadCnt = 0;
    memories.vqTagReadCnt = 0;
    link.cmd = "MR001;";
    sendCommand(link.cmd);
}

}  // namespace corvane
