#include "simulator/transmit_line.h"

#include <algorithm>
#include <utility>

namespace simulator {

namespace {

using namespace std::chrono_literals;

constexpr std::size_t capacity = 4'000;
constexpr int charactersPerSecond = 3'840;
constexpr Time lateness = 1s;
constexpr Time pauseInCut = 5ms;

Time timeOnLine(std::size_t characters) {
    return Time(static_cast<Time::rep>(characters) * Time::period::den / charactersPerSecond);
}

}  // namespace

void TransmitLine::queue(std::string message, Time now, Time ready) {
    if (waiting_.size() >= capacity) return;
    const Time lineFree = waiting_.empty() ? now : std::max(now, lastDue_);
    Time due = instant_ ? lineFree : std::max(ready, std::max(lineFree, lastDue_) + timeOnLine(message.size()));
    if (late_) due = std::max(due, ready + lateness);
    if (cut_ && message.size() > 1) {
        const std::size_t place = 1 + random_() % (message.size() - 1);
        waiting_.push_back({due, message.substr(0, place)});
        message.erase(0, place);
        if (!instant_) due += pauseInCut;
    }
    waiting_.push_back({due, std::move(message)});
    lastDue_ = due;
}

std::optional<Time> TransmitLine::nextDue() const {
    if (waiting_.empty()) return std::nullopt;
    return waiting_.front().due;
}

std::optional<std::string> TransmitLine::takeDue(Time now) {
    if (waiting_.empty() || waiting_.front().due > now) return std::nullopt;
    std::string text = std::move(waiting_.front().text);
    waiting_.pop_front();
    return text;
}

}  // namespace simulator
