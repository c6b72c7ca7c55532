// Waiting in tests: on the event loop, for a condition, up to a deadline.
#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>
#include <chrono>

namespace corvane {

// Runs the event loop until `condition` holds; false when it has not by the deadline.
template <class Condition>
bool eventually(Condition condition, std::chrono::milliseconds deadline = std::chrono::seconds(5)) {
    const QDeadlineTimer end(deadline);
    QTimer look;  // conditions may come true without an event
    look.start(std::chrono::milliseconds(2));
    while (!condition()) {
        if (end.hasExpired()) return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

// Runs the event loop for a while, to see that nothing happens.
inline void runEventLoop(std::chrono::milliseconds time) {
    eventually([] { return false; }, time);
}

}  // namespace corvane
