#pragma once

#include <deque>
#include <optional>
#include <random>
#include <string>

#include "simulator/transmission.h"

namespace simulator {

// The way out at 38400 baud: when each message has gone over the line. Messages never overtake one another. At most
// 4,000 wait; what comes while the line is that far behind is lost, as in a transceiver whose buffer is full.
class TransmitLine {
public:
    // Everything at once, without waiting for the line. Late answers stay late.
    void setInstant(bool instant) { instant_ = instant; }
    // Every message one second after its time.
    void setLate(bool late) { late_ = late; }
    // Every message of two characters or more in two pieces, 5 ms apart, cut at a place that varies.
    void setCut(bool cut) { cut_ = cut; }

    // Puts a message on the line that is ready to go at `ready`; it has arrived when it is ready and the line has
    // carried it, 3840 characters a second, after the ones before it.
    void queue(std::string message, Time now, Time ready);

    std::optional<Time> nextDue() const;

    // The next piece that has arrived by `now`, in order, or nothing.
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
