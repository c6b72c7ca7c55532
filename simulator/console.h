#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "simulator/simulated_transceiver.h"

namespace simulator {

// The typed commands that operate a transceiver's knobs: "tune 14074000", "memory 5 7074000 USB \"FT8\"", "unplug".
class Console {
public:
    explicit Console(SimulatedTransceiver& transceiver) : transceiver_(transceiver) {}

    // Carries out one line and returns the text to print, with "\n" at its end; an empty text for an empty line. If the
    // line is not understood or the transceiver refuses it, the text says why.
    std::string execute(std::string_view line);

    // True once "quit" was typed.
    bool finished() const { return finished_; }
    void finish() { finished_ = true; }

    SimulatedTransceiver& transceiver() { return transceiver_; }

    // The list of typed commands, one a line.
    static std::string help();

private:
    SimulatedTransceiver& transceiver_;
    bool finished_ = false;
};

// The words of a line, separated by blanks. Double quotes enclose a word with blanks, or an empty one: the
// line `memory 5 7074000 USB "40 M"` has the words memory, 5, 7074000, USB and 40 M.
std::vector<std::string> wordsOf(std::string_view line);

}  // namespace simulator
