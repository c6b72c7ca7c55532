#pragma once

#include <deque>
#include <optional>
#include <random>
#include <string>

#include "simulator/transmission.h"

namespace simulator {

// The outgoing line at 38400 baud: when each message arrives. Messages never overtake one another. At most 4,000 wait;
// further ones are lost, as in a transceiver whose buffer is full.
class TransmitLine {
public:
    // Sends everything at once, without waiting for the line. Late answers stay late.
    void setInstant(bool instant) { instant_ = instant; }
    // Delays every message by one second.
    void setLate(bool late) { late_ = late; }
    // Sends every message of two characters or more in two pieces, 5 ms apart, cut at a random place.
    void setCut(bool cut) { cut_ = cut; }

    // Queues a message that can be sent from `ready` on. It arrives once the line has carried it, after the messages
    // before it, at 3840 characters a second.
    void queue(std::string message, Time now, Time ready);

    std::optional<Time> nextDue() const;

    // The next piece, in order, if it has arrived by `now`.
    std::optional<std::string> takeDue(Time now);

    void clear() { waiting_.clear(); }

private:
    struct Piece {
        Time due;
        std::string text;
    };

    std::deque<Piece> waiting_;
    Time lastDue_{};
    std::minstd_rand random_{1};
    bool instant_ = false;
    bool late_ = false;
    bool cut_ = false;
};

}  // namespace simulator
