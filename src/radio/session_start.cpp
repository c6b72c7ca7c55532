// The steps after a port has opened: memories, memory slots, synchronisation, settings pages. They run at fixed times,
// whether or not the transceiver answers.
#include "controller/serial_port_demo_controller.h"

namespace corvane {

using namespace std::chrono_literals;

void SerialPortDemoController::startSession() {
    ++link.session;
    display.vqMemAButton.setTitle({});
    afterOpening(5s, &SerialPortDemoController::startMemoryRead);
    afterOpening(7s, &SerialPortDemoController::setUpMemorySlots);
    afterOpening(8s, &SerialPortDemoController::synchronise);
    afterOpening(9s, &SerialPortDemoController::requestSettingsPage<0>);
    afterOpening(10s, &SerialPortDemoController::requestSettingsPage<1>);
    afterOpening(11s, &SerialPortDemoController::requestSettingsPage<2>);
    afterOpening(12s, &SerialPortDemoController::requestSettingsPage<3>);
}

// A step of an opening that has ended since does not run, so that a port opened again sees its own steps only.
void SerialPortDemoController::afterOpening(Scheduler::Duration delay, void (SerialPortDemoController::*step)()) {
    later(delay, [this, step, session = link.session] {
        if (session == link.session) (this->*step)();
    });
}

void SerialPortDemoController::setUpMemorySlots() { writeString(memorySlotString); }

void SerialPortDemoController::synchronise() {
    display.mainTab.selectItem(Display::radioPage);
    writeString(link.syncRadioCmd);
}

}  // namespace corvane
