// A port with a simulated transceiver.
#pragma once

#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>

#include "qt/platform/listed_port.h"

namespace simulator {
class SimulatedTransceiver;
}

namespace corvane {

// "Simulated transceiver": a port like any other, which opens on the next turn of the event loop. The transceiver is
// made at the first opening and keeps its state from one opening to the next; it runs in real time.
class SimulatedPort final : public ListedPort {
public:
    SimulatedPort();
    ~SimulatedPort() override;

    bool isOpen() const override { return open_; }
    void open() override;
    void close() override;
    void sendData(std::string_view bytes) override;
    void deviceLeft() override;

    // Turns the transceiver's own knobs, e.g. to tune it; its reports come over the line.
    void operate(const std::function<void(simulator::SimulatedTransceiver&)>& action);

private:
    std::chrono::microseconds now() const;
    void makeTransceiver();
    void deliver();
    void arm();
    void shut();

    std::unique_ptr<simulator::SimulatedTransceiver> transceiver_;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    QTimer opening_;
    QTimer next_;
    bool open_ = false;
    std::string arrived_;  // bytes from the transceiver, not delivered yet
};

}  // namespace corvane
