#pragma once

#include <time.h>

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "simulator/console.h"
#include "simulator/port_link.h"
#include "simulator/program_options.h"
#include "simulator/pseudo_terminal.h"
#include "simulator/simulated_transceiver.h"
#include "simulator/stop_signals.h"

namespace simulator {

// corvane-radio itself: the simulated transceiver between a pseudo-terminal and the typed commands of standard input.
// Prints "port /dev/pts/3" whenever it is plugged in and "unplugged" when it is not.
class RadioProgram {
public:
    explicit RadioProgram(const ProgramOptions& options);

    // Runs until "quit", a signal or, if standard input is a terminal, the end of input; another input may end before.
    // Throws std::system_error when the system gives no port or the link cannot be made.
    void run();

private:
    Time now() const;
    std::optional<timespec> timeToNextEvent() const;
    void waitAndServe();
    void followPlug();
    void readTyped();
    void executeTyped();

    ProgramOptions options_;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    StopSignals stopSignals_;
    SimulatedTransceiver transceiver_;
    Console console_{transceiver_};
    std::unique_ptr<PseudoTerminal> terminal_;
    std::unique_ptr<PortLink> link_;
    std::string typed_;
    bool inputEnded_ = false;
};

}  // namespace simulator
