// A transceiver that is switched off and on again while its port stays open. It tells that it goes, but not that it has
// come back: its reports are off then. So the first word from it brings the display into step, and what the operator
// does meanwhile is followed by one question.
#include <utility>

#include "radio/link.h"
#include "radio/link_messages.h"

namespace corvane {

using namespace std::chrono_literals;

namespace {

constexpr auto quiet = 2s;  // POWER ON has sent its last command 1.25 s after its first, and the transceiver starts

constexpr std::string_view otherReads =
    "VS;MD0;NB0;NR0;PC;AG0;RG0;BC0;BI;PA0;BP00;CO00;SF0;SF1;SS00;SS01;SS03;SS04;SS05;SS06;MS;EX040101;";

}  // namespace

void Link::noteResponse(std::string_view response) {
    if (response == "PS0") {
        if (std::exchange(switchedOff_, true)) return;
        showStatus();
        showMessage(switchedOffMessage);
        return onSwitchedOff();
    }
    if (std::exchange(switchedOff_, false)) {
        showStatus();
        clearMessage(switchedOffMessage);
        catchUp();
    }
    inStep_ = inStep_ || synchronised_;
}

// The transceiver is left as it is: everything is read, the active side last, and nothing but the reports is set. One
// that has missed the synchronisation gets it now.
void Link::catchUp() {
    if (!synchronised_) return;  // that is still to come
    if (!inStep_) return writeString(syncRadioCmd_);
    const bool onA = display_.activeVfoField.stringValue() == "A";
    sendCommand("AI1;AI;");  // the answer tells the other rooms that changes are reported again
    sendCommand(onA ? "OI;FB;IF;FA;" : "IF;FA;OI;FB;");
    sendCommand(otherReads);
}

void Link::askWhetherOn() {
    if (!switchedOff_ || !synchronised_) return;
    tasks_.after(quiet, [this, question = ++question_, session = session_] {
        if (question != question_ || session != session_ || !switchedOff_) return;
        if (serialPort_) hand(*serialPort_, "PS;");
    });
}

}  // namespace corvane
