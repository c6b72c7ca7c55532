// Closes connections whose client takes too long.
#pragma once

#include <chrono>
#include <mutex>
#include <unordered_map>

struct MHD_Connection;

namespace corvane::directory {

// From any thread.
class OpenConnections {
public:
    using Time = std::chrono::steady_clock::time_point;
    static constexpr std::chrono::seconds patience{15};

    void opened(MHD_Connection* connection, int socket, Time now);
    // A request has been answered: its time starts again.
    void answered(MHD_Connection* connection, Time now);
    // Called before the socket is closed.
    void closed(MHD_Connection* connection);
    // Shuts down the socket of each connection whose time is over; the server then closes it.
    void closeLate(Time now);

private:
    struct Open {
        int socket;
        Time since;
    };
    std::mutex mutex_;
    std::unordered_map<MHD_Connection*, Open> connections_;
};

}  // namespace corvane::directory
