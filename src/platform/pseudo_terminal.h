// A serial port that is made here, for programs that know only serial ports. Its path is fixed and the user's own.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace corvane {

// All callbacks come on the user-interface thread, and never from within a call of its operations.
class PseudoTerminal {
public:
    virtual ~PseudoTerminal() = default;

    enum class Opening { yes, taken, failed };  // taken: another Corvane of the same user offers it

    std::function<void()> onConnected = [] {};     // a program has opened the port
    std::function<void()> onReadable = [] {};      // bytes have come; not told again before read() has left none
    std::function<void()> onDisconnected = [] {};  // the last program has closed it; what it sent before can be read

    virtual Opening open() = 0;
    virtual void close() = 0;              // the path is gone
    virtual std::string path() const = 0;  // "/run/user/1000/corvane/radio"

    virtual std::string read(std::size_t limit) = 0;  // at most so many bytes; what is left waits
    virtual void write(std::string_view bytes) = 0;   // never blocks; what is not taken yet waits
    virtual std::size_t backlog() const = 0;          // bytes that wait for the program
};

}  // namespace corvane
