// Connections from other programs on this machine, over Qt's sockets.
#pragma once

#include <QTcpServer>

#include "platform/loopback_server.h"

namespace corvane {

class QtLoopbackServer final : public LoopbackServer {
public:
    QtLoopbackServer();

    Listening listen(int port) override;
    void stop() override;

private:
    class Door;
    // One for each address: 127.0.0.1 and ::1.
    std::unique_ptr<QTcpServer> doors_[2];
};

}  // namespace corvane
