#include "open_connections.h"

#include <sys/socket.h>

namespace corvane::directory {

void OpenConnections::opened(MHD_Connection* connection, int socket, Time now) {
    const std::lock_guard lock(mutex_);
    connections_[connection] = {socket, now};
}

void OpenConnections::answered(MHD_Connection* connection, Time now) {
    const std::lock_guard lock(mutex_);
    if (const auto found = connections_.find(connection); found != connections_.end()) found->second.since = now;
}

void OpenConnections::closed(MHD_Connection* connection) {
    const std::lock_guard lock(mutex_);
    connections_.erase(connection);
}

void OpenConnections::closeLate(Time now) {
    const std::lock_guard lock(mutex_);
    for (const auto& [connection, open] : connections_)
        if (now - open.since > patience) shutdown(open.socket, SHUT_RDWR);
}

}  // namespace corvane::directory
