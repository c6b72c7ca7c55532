// The steps after a port has opened: memories, memory slots, synchronisation, settings pages. They run at fixed times,
// whether or not the transceiver responds.
#include <utility>

#include "radio/link.h"

namespace corvane {

using namespace std::chrono_literals;

void Link::startSession() {
    ++session_;
    display_.vqMemAButton.setTitle({});
    afterOpening(5s, [this] { onMemoryReadDue(); });
    afterOpening(7s, [this] { setUpMemorySlots(); });
    afterOpening(8s, [this] { synchronise(); });
    for (int page = 0; page < Display::settingsPages; ++page)
        afterOpening(9s + page * 1s, [this, page] { display_.settingsTab.requestView(page); });
}

// A step does not run once its session has ended: a port that is opened again gets only its own steps.
void Link::afterOpening(Scheduler::Duration delay, std::function<void()> step) {
    tasks_.after(delay, [this, run = std::move(step), session = session_] {
        if (session == session_) run();
    });
}

void Link::setUpMemorySlots() { writeString(memorySlotString); }

void Link::synchronise() {
    display_.mainTab.selectItem(Display::radioPage);
    synchronised_ = true;
    writeString(syncRadioCmd_);
}

}  // namespace corvane
