// The test bench with the simulated transceiver on its port, synchronised, with auto information on.
#pragma once

#include "simulator/simulated_transceiver.h"
#include "simulator/start_state.h"
#include "tests/support/test_bench.h"

namespace corvane {

class RadioBench : public TestBench {
public:
    explicit RadioBench(simulator::RadioState state = simulator::startState()) : transceiver(std::move(state)) {
        transceiver.setInstantAnswers(true);
        transceiver.transmit = [this](std::string_view bytes) { answers_ += bytes; };
        port->onWrite = [this](std::string_view bytes) { transceiver.receive(bytes, simulator::Time{}); };
        controller.writeString(controller.link.syncRadioCmd());
        settle();
        forgetWhatHappened();
    }

    // Hands the transceiver's responses to the program, one at a time as a port does, until neither sends more.
    void settle() {
        while (!answers_.empty()) {
            const std::string response = answers_.substr(0, answers_.find(';') + 1);
            answers_.erase(0, response.size());
            receive(response);
        }
    }

    simulator::SimulatedTransceiver transceiver;

private:
    std::string answers_;
};

}  // namespace corvane
