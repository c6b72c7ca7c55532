// A virtual port whose program is played by the test.
#pragma once

#include <string>
#include <utility>

#include "platform/pseudo_terminal.h"

namespace corvane {

class FakePseudoTerminal final : public PseudoTerminal {
public:
    Opening open() override {
        offered = result == Opening::yes;
        return result;
    }
    void close() override { offered = connected = false; }
    std::string path() const override { return "/run/user/1000/corvane/radio"; }
    std::string read(std::size_t limit) override {
        std::string bytes = toPort.substr(0, limit);
        toPort.erase(0, bytes.size());
        return bytes;
    }
    void write(std::string_view bytes) override { fromPort += bytes; }
    std::size_t backlog() const override { return reads ? 0 : fromPort.size(); }

    // The program.
    void come() {
        connected = true;
        onConnected();
    }
    void leave() {
        connected = false;
        onDisconnected();
    }
    std::string take() { return std::exchange(fromPort, {}); }
    // Sends commands and gives what is answered at once.
    std::string ask(std::string_view commands) {
        toPort += commands;
        onReadable();
        return take();
    }

    Opening result = Opening::yes;
    bool offered = false;
    bool connected = false;
    bool reads = true;     // else what it is answered waits
    std::string toPort;    // not read yet
    std::string fromPort;  // what the program was answered
};

}  // namespace corvane
