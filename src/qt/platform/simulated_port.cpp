#include "qt/platform/simulated_port.h"

#include <algorithm>
#include <utility>

#include "simulator/simulated_transceiver.h"

namespace corvane {

using std::chrono::milliseconds;

SimulatedPort::SimulatedPort() : ListedPort("Simulated transceiver", "Built into the program, no radio needed") {
    opening_.setSingleShot(true);
    opening_.setInterval(0);
    QObject::connect(&opening_, &QTimer::timeout, &opening_, [this] {
        const KeepAlive alive(*this);
        open_ = true;
        tellOpened();
    });
    next_.setSingleShot(true);
    next_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&next_, &QTimer::timeout, &next_, [this] {
        const KeepAlive alive(*this);
        transceiver_->advanceTo(now());
        deliver();
        arm();
    });
}

SimulatedPort::~SimulatedPort() = default;

void SimulatedPort::open() {
    if (open_ || opening_.isActive()) return;
    makeTransceiver();
    transceiver_->advanceTo(now());  // its reports since then are lost, as on an unplugged line
    arm();
    opening_.start();
}

void SimulatedPort::close() {
    opening_.stop();
    if (!open_) return;
    const KeepAlive alive(*this);
    shut();
    tellClosed();
}

void SimulatedPort::sendData(std::string_view bytes) {
    if (!open_) return;
    const KeepAlive alive(*this);
    transceiver_->receive(bytes, now());
    arm();
}

void SimulatedPort::deviceLeft() {
    opening_.stop();
    if (!open_) return;
    const KeepAlive alive(*this);
    shut();
    tellRemoved();
}

void SimulatedPort::operate(const std::function<void(simulator::SimulatedTransceiver&)>& action) {
    const KeepAlive alive(*this);
    makeTransceiver();
    transceiver_->advanceTo(now());
    action(*transceiver_);
    arm();
}

std::chrono::microseconds SimulatedPort::now() const {
    return std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start_);
}

void SimulatedPort::makeTransceiver() {
    if (transceiver_) return;
    transceiver_ = std::make_unique<simulator::SimulatedTransceiver>();
    transceiver_->transmit = [this](std::string_view bytes) {
        if (open_) arrived_ += bytes;
    };
}

// Never called from inside a write: an answer must not come between two commands of one action.
void SimulatedPort::deliver() {
    const std::string bytes = std::exchange(arrived_, {});
    if (!bytes.empty()) receive(bytes);
}

void SimulatedPort::arm() {
    if (!arrived_.empty()) return next_.start(0);
    const auto next = transceiver_->nextEvent();
    if (!next) return next_.stop();
    const auto wait = std::chrono::ceil<milliseconds>(*next - now());
    next_.start(std::max(wait, milliseconds::zero()));
}

void SimulatedPort::shut() {
    open_ = false;
    arrived_.clear();
    forgetTail();
}

}  // namespace corvane
