// The steps after a port has opened: memories, memory slots, synchronisation, settings pages. They run at fixed times,
// whether or not the transceiver answers.
#include <utility>

#include "controller/serial_port_demo_controller.h"

namespace corvane {

using namespace std::chrono_literals;

void SerialPortDemoController::startSession() {
    ++link.session;
    display.vqMemAButton.setTitle({});
    afterOpening(5s, [this] { startMemoryRead(); });
    afterOpening(7s, [this] { setUpMemorySlots(); });
    afterOpening(8s, [this] { synchronise(); });
    for (int page = 0; page < Display::settingsPages; ++page)
        afterOpening(9s + page * 1s, [this, page] { display.settingsTab.requestView(page); });
}

// A step of an opening that has ended since does not run, so that a port opened again sees its own steps only.
void SerialPortDemoController::afterOpening(Scheduler::Duration delay, std::function<void()> step) {
    later(delay, [this, run = std::move(step), session = link.session] {
        if (session == link.session) run();
    });
}

void SerialPortDemoController::setUpMemorySlots() { writeString(memorySlotString); }

void SerialPortDemoController::synchronise() {
    display.mainTab.selectItem(Display::radioPage);
    writeString(link.syncRadioCmd);
}

}  // namespace corvane
