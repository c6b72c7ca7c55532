#pragma once

#include <string>
#include <string_view>

namespace simulator {

// A pseudo-terminal in raw mode, whose path another program opens like a serial port. Both ends are closed when it is
// destroyed, which the other program sees as a port that was pulled out.
class PseudoTerminal {
public:
    // Throws std::system_error when the system gives none.
    PseudoTerminal();
    ~PseudoTerminal();
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    const std::string& path() const { return path_; }
    // For poll(); readable when bytes have come in.
    int descriptor() const { return master_; }

    // What has come in, empty when nothing has.
    std::string read();
    // Writes without waiting; what does not fit because nobody reads is lost, as on a line.
    void write(std::string_view bytes);

private:
    int master_ = -1;
    int slave_ = -1;  // kept open, so that the master does not hang up whenever the other program closes its end
    std::string path_;
};

}  // namespace simulator
