#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "simulator/simulated_transceiver.h"

namespace simulator {

// The typed commands that work a transceiver's knobs: "tune 14074000", "memory 5 7074000 USB \"FT8\"", "unplug".
class Console {
public:
    explicit Console(SimulatedTransceiver& transceiver) : transceiver_(transceiver) {}

    // Carries out one line and returns what there is to say, "\n" at its end. Nothing is said to an empty line; one
    // that is not understood, or that the transceiver refuses, is told what is wrong.
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

// The words of a line, separated by blanks. Double quotes hold a word with blanks together and may hold nothing: the
// line `memory 5 7074000 USB "40 M"` has the words memory, 5, 7074000, USB and 40 M.
std::vector<std::string> wordsOf(std::string_view line);

}  // namespace simulator
