// Other programs on this machine, connected by TCP. Nothing outside the machine can reach the server.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace corvane {

// One connection; destroying it closes it. All callbacks come on the user-interface thread, and never from within a
// call of the connection's own operations. From a callback the owner may destroy the connection.
class TcpConnection {
public:
    virtual ~TcpConnection() = default;

    std::function<void()> onReadable = [] {};  // bytes have come; not told again before read() has left none
    std::function<void()> onWritten = [] {};   // the other program has taken some of what waited
    std::function<void()> onClosed = [] {};    // the other program has gone

    virtual std::string read(std::size_t limit) = 0;  // at most so many bytes; what is left waits
    virtual void write(std::string_view bytes) = 0;   // never blocks; what is not taken yet waits
    virtual std::size_t backlog() const = 0;          // bytes that wait for the other program
    virtual std::string peer() const = 0;             // for the operator: "port 53412"
};

class LoopbackServer {
public:
    virtual ~LoopbackServer() = default;

    enum class Listening { yes, portTaken, failed };

    // Called with each new connection; an owner that refuses it drops it.
    std::function<void(std::unique_ptr<TcpConnection>)> onConnection;

    // Listens on 127.0.0.1 and, where the machine has it, on ::1.
    virtual Listening listen(int port) = 0;
    virtual void stop() = 0;  // connections stay
};

}  // namespace corvane
