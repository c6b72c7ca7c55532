#pragma once

#include <string>
#include <string_view>

namespace simulator {

// A pseudo-terminal in raw mode, whose path another program opens like a serial port. The destructor closes both ends;
// the other program sees that as an unplugged port.
class PseudoTerminal {
public:
    // Throws std::system_error when the system gives none.
    PseudoTerminal();
    ~PseudoTerminal();
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    const std::string& path() const { return path_; }
    // For poll(): readable when bytes have arrived.
    int descriptor() const { return master_; }

    // The bytes that have arrived; may be empty. Does not wait.
    std::string read();
    // Writes without waiting. Bytes that do not fit because nothing reads them are lost, as on a line.
    void write(std::string_view bytes);

private:
    int master_ = -1;
    int slave_ = -1;  // kept open, so that the master does not hang up whenever the other program closes its end
    std::string path_;
};

}  // namespace simulator
