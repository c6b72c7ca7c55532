// One program that is connected to the rigctl server.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/loopback_server.h"
#include "share/rigctl_exchange.h"
#include "share/rigctl_reader.h"

namespace corvane {

struct RigctlClient {
    std::unique_ptr<TcpConnection> connection;
    RigctlSession session;
    RigctlReader reader;
    std::optional<RigctlRequest> waiting;  // for a value, or for the end of a transmission
    std::string since;                     // "13:02:11"
    std::string last;                      // what it asked or set last: "F 14074000"
    ShareTime heard{};                     // when it asked that
    std::optional<ShareTime> stalled;      // since when it has not taken its answers
    bool due = false;                      // it is served again in the next turn of the event loop
    bool ends = false;                     // the connection is to be closed
};

}  // namespace corvane
