// How late the event loop ever was for a beat every 10 ms.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <chrono>

namespace corvane {

class Heartbeat {
public:
    Heartbeat() {
        timer_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { beat(); });
        timer_.start(period);
        since_.start();
    }
    std::chrono::milliseconds latest() {
        beat();
        return latest_;
    }

private:
    static constexpr std::chrono::milliseconds period{10};

    void beat() { latest_ = std::max(latest_, std::chrono::milliseconds(since_.restart()) - period); }

    QTimer timer_;
    QElapsedTimer since_;
    std::chrono::milliseconds latest_{0};
};

}  // namespace corvane
