// Switching the transceiver off after a while. Every choice plans a switch-off of its own, and none is called off: one
// that falls due while nothing is armed does nothing, and one of an earlier choice that falls due after a later one
// switches off.
#include "controller/serial_port_demo_controller.h"

namespace corvane {

using namespace std::chrono_literals;

// Entry 1 is half an hour, entry 2 an hour, and so on; entry 0 takes it back.
void SerialPortDemoController::planPowerOff(int entry) {
    link.cmd.clear();
    powerOff.vqAPO = entry < 1 ? 0 : 1;
    if (entry >= 1) later(entry * 1800s, [this] { autoPowerOff(); });
}

void SerialPortDemoController::autoPowerOff() {
    if (powerOff.vqAPO != 1) return;
    display.APOPopUpButton.selectItem(0);
    powerOff.vqAPO = 0;
    display.sMeter.setIntegerValue(0);
    writeString("PS0;");
    playSound("Seatbelts");
}

}  // namespace corvane
