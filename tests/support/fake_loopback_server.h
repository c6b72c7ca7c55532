// A server whose programs are played by the test.
#pragma once

#include <string>
#include <utility>

#include "platform/loopback_server.h"

namespace corvane {

// The program's end of a connection. It outlives the connection.
struct FakeProgram {
    std::string toServer;    // not read yet
    std::string fromServer;  // what it was answered
    bool reads = true;       // else what it is answered waits
    bool connected = false;
    TcpConnection* connection = nullptr;

    std::string take() { return std::exchange(fromServer, {}); }
    // Sends a text and gives what is answered at once.
    std::string ask(std::string_view text) {
        toServer += text;
        if (connection) connection->onReadable();
        return take();
    }
    void leave() {
        if (connection) connection->onClosed();
    }
};

class FakeLoopbackServer final : public LoopbackServer {
public:
    Listening listen(int port) override {
        if (result == Listening::yes) listening = port;
        return result;
    }
    void stop() override { listening = 0; }

    void connect(FakeProgram& program) {
        program.connected = true;
        onConnection(std::make_unique<Connection>(program));
    }

    Listening result = Listening::yes;
    int listening = 0;  // the port

private:
    struct Connection final : TcpConnection {
        explicit Connection(FakeProgram& end) : program(end) { program.connection = this; }
        ~Connection() override {
            program.connected = false;
            program.connection = nullptr;
        }
        Connection(const Connection&) = delete;
        Connection& operator=(const Connection&) = delete;
        std::string read(std::size_t limit) override {
            std::string bytes = program.toServer.substr(0, limit);
            program.toServer.erase(0, bytes.size());
            return bytes;
        }
        void write(std::string_view bytes) override { program.fromServer += bytes; }
        std::size_t backlog() const override { return program.reads ? 0 : program.fromServer.size(); }
        std::string peer() const override { return "port 50000"; }

        FakeProgram& program;
    };
};

}  // namespace corvane
