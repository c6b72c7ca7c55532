// What the panel "Other programs" shows of the virtual port.
#include <fmt/core.h>

#include "share/clock_seconds.h"
#include "share/virtual_port.h"

namespace corvane {

void VirtualPort::copyPath() {
    around_.clipboard.setText(around_.terminal.path());
    note(around_.terminal.path() + " is on the clipboard.");
}

std::string VirtualPort::time() const { return clockSeconds(tasks_.now()); }

void VirtualPort::note(const std::string& text) { display_.virtualPortNoticeField.setStringValue(text); }

void VirtualPort::show() {
    display_.virtualPortCopyButton.setEnabled(offered_);
    display_.virtualPortField.setStringValue(
        offered_ ? fmt::format("In the other program choose the serial port {}", around_.terminal.path())
                 : "No virtual port");
    std::string state;
    if (!since_.empty()) state = fmt::format("A program at the virtual port since {}", since_);
    if (radio_.keyedBy() == number) state += ". ON AIR: it has keyed the transceiver";
    if (offered_ && state.empty()) state = "No program at the virtual port";
    display_.virtualPortStateField.setStringValue(state);
}

}  // namespace corvane
