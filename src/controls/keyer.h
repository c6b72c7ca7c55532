// Texts that are transmitted: those that the operator types, and the memories that the transceiver keeps for each mode
// group.
#pragma once

#include <optional>
#include <string>

#include "display/display.h"
#include "interpret/mirror.h"
#include "radio/link.h"

namespace corvane {

class Keyer {
public:
    Keyer(Display& display, Link& link, Mirror& mirror);

    void sendTextMessage(Button& sender);  // transmits the typed text through memory 5
    // Transmits a text through memory 5 of the present mode group. False when there is no group, or the transceiver
    // cannot hold the text: nothing is sent.
    bool transmit(const std::string& text);
    void returnPressedInTextMessageField(TextField& sender);
    void clearTextMessage();
    // Gives the command that transmits memory 1 to 5 of the present mode, and adds the memory's text to the log. Gives
    // nothing in a mode without memories.
    std::optional<std::string> playMemory(int memory);
    void clearLog();

    // The sender is the pop-up of an editor; its selected entry is the memory to write.
    void writeMemoryText(PopUpButton& sender);

private:
    void log(const std::string& text);  // above what was sent before

    Display& display_;
    Link& link_;
    Mirror& mirror_;
};

}  // namespace corvane
