#include "simulator/simulated_transceiver.h"

#include <algorithm>
#include <utility>

#include "simulator/decimal_field.h"
#include "simulator/start_state.h"

namespace simulator {

namespace {

using namespace std::chrono_literals;

constexpr Time answerDelay = 10ms;
constexpr Time rejectionDelay = 4ms;
constexpr Time noiseInterval = 50ms;
constexpr std::size_t longestNoise = 8;
constexpr unsigned oneLostIn = 8;
constexpr std::size_t mostWaitingTransmissions = 100;
constexpr std::size_t mostTextsKept = 1'000;
constexpr int strongestSignal = 255;
constexpr int spinSignalStep = 7;

std::string_view withoutTerminator(std::string_view command) {
    if (command.ends_with(';')) command.remove_suffix(1);
    return command;
}

}  // namespace

/// Marks the transceiver as busy, so that calls from within `transmit` wait for their turn.
class SimulatedTransceiver::Turn {
public:
    explicit Turn(SimulatedTransceiver& transceiver) : transceiver_(transceiver) { transceiver_.busy_ = true; }
    ~Turn() { transceiver_.busy_ = false; }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

private:
    SimulatedTransceiver& transceiver_;
};

SimulatedTransceiver::SimulatedTransceiver(RadioState state) : state_(std::move(state)), reports_(state_) {}

SimulatedTransceiver::SimulatedTransceiver() : SimulatedTransceiver(startState()) {}

void SimulatedTransceiver::receive(std::string_view bytes, Time now) {
    if (faults_.unplugged) return;
    if (busy_) {
        pending_ += bytes;
        return;
    }
    const Turn turn(*this);
    catchUp(now);
    pending_ += bytes;
    handlePending();
}

void SimulatedTransceiver::advanceTo(Time now) {
    if (busy_) return;
    const Turn turn(*this);
    catchUp(now);
}

std::optional<Time> SimulatedTransceiver::nextEvent() const {
    std::optional<Time> earliest;
    for (const auto& event : {line_.nextDue(), transmissionEnd_, spin_.nextReport(), nextNoise_})
        if (event && (!earliest || *event < *earliest)) earliest = event;
    return earliest;
}

void SimulatedTransceiver::catchUp(Time now) {
    for (auto event = nextEvent(); event && *event <= now; event = nextEvent()) {
        now_ = std::max(now_, *event);
        fireEvents();
        handlePending();
    }
    now_ = std::max(now_, now);
}

void SimulatedTransceiver::fireEvents() {
    sendDue();
    if (transmissionEnd_ && *transmissionEnd_ <= now_) endTransmission();
    if (const auto next = spin_.nextReport(); next && *next <= now_) spinOn();
    if (nextNoise_ && *nextNoise_ <= now_) sendNoise();
    sendDue();
}

void SimulatedTransceiver::handlePending() {
    sendDue();
    while (!pending_.empty()) {
        for (const std::string& command : assembler_.take(std::exchange(pending_, {}))) {
            handle(command);
            sendDue();
        }
    }
}

void SimulatedTransceiver::handle(std::string_view command) {
    received_.add(now_, command);
    const Reply reply = carryOut(command, now_ + answerDelay);
    if (!reply.accepted)
        answer("?", now_ + rejectionDelay);
    else if (!reply.answer.empty())
        answer(reply.answer, now_ + answerDelay);
}

Reply SimulatedTransceiver::carryOut(std::string_view command, Time ready) {
    const bool reporting = state_.autoInformation;
    Reply reply = execute(command, state_);
    if (!reply.accepted) return reply;
    if (!state_.powered) stopEverything();
    if (reply.transmission && transmissions_.size() < mostWaitingTransmissions) {
        transmissions_.push_back(*reply.transmission);
        if (!transmissionEnd_) beginTransmission();
    }
    if (reporting && !reply.report.empty()) report(reply.report, ready);
    reportChanges(reporting && state_.powered, ready);
    return reply;
}

void SimulatedTransceiver::answer(std::string text, Time ready) {
    if (faults_.silent || std::exchange(loseNextAnswer_, false) || loses()) return;
    line_.queue(std::move(text) + ";", now_, ready);
}

void SimulatedTransceiver::report(const std::string& text, Time ready) {
    if (!faults_.silent && !faults_.unplugged && !loses()) line_.queue(text + ";", now_, ready);
}

bool SimulatedTransceiver::loses() { return faults_.lossy && random_() % oneLostIn == 0; }

void SimulatedTransceiver::reportChanges(bool reporting, Time ready) {
    for (const std::string& change : reports_.takeChanges(state_))
        if (reporting) report(change, ready);
}

void SimulatedTransceiver::sendDue() {
    while (const auto text = line_.takeDue(now_)) send(*text);
}

void SimulatedTransceiver::send(std::string_view bytes) {
    if (transmit && !faults_.unplugged) transmit(bytes);
}

void SimulatedTransceiver::beginTransmission() {
    const Transmission& next = transmissions_.front();
    transmissionEnd_ = now_ + next.duration;
    state_.transmitting = true;
    if (!next.text.empty()) textsOnAir_.push_back(next.text);
    if (textsOnAir_.size() > mostTextsKept) textsOnAir_.pop_front();
}

void SimulatedTransceiver::endTransmission() {
    transmissions_.pop_front();
    transmissionEnd_.reset();
    state_.transmitting = false;
    if (!transmissions_.empty()) beginTransmission();
    reportChanges(state_.autoInformation, now_);
}

void SimulatedTransceiver::stopEverything() {
    spin_.stop();
    transmissions_.clear();
    transmissionEnd_.reset();
    state_.transmitting = false;
}

void SimulatedTransceiver::spinOn() {
    const Side side = state_.active;
    std::string text;
    switch (spin_.take()) {
        case KnobSpin::Report::frequency:
            if (!state_.tune(side, {state_.tuning(side).frequency + spinStep_, state_.tuning(side).mode}))
                spinStep_ = -spinStep_;
            text = frequencyReading(state_, side);
            break;
        case KnobSpin::Report::meter:
            state_.signalLevel = (state_.signalLevel + spinSignalStep) % (strongestSignal + 1);
            text = meterReading(state_);
            break;
        case KnobSpin::Report::information:
            text = informationReading(state_, side);
            break;
        case KnobSpin::Report::rate:
            text = "FD000000000412";  // hertz a second
            break;
    }
    reports_.takeChanges(state_);  // the spin sends its own reports instead
    if (state_.autoInformation) report(text, now_);
}

void SimulatedTransceiver::sendNoise() {
    nextNoise_ = now_ + noiseInterval;
    std::string burst(1 + random_() % longestNoise, '\0');
    for (char& byte : burst) {
        byte = static_cast<char>(random_() % 256);
        if (byte == ';') byte = '\xff';
    }
    send(burst);
}

void SimulatedTransceiver::setInstantAnswers(bool instant) { line_.setInstant(instant); }

void SimulatedTransceiver::setFaults(const Faults& faults) {
    faults_ = faults;
    line_.setCut(faults.cutAnswers);
    line_.setLate(faults.lateAnswers);
    if (faults.silent || faults.unplugged) line_.clear();
    if (faults.unplugged) {
        assembler_.clear();
        pending_.clear();
    }
    if (!faults.noise)
        nextNoise_.reset();
    else if (!nextNoise_)
        nextNoise_ = now_ + noiseInterval;
}

void SimulatedTransceiver::sendRaw(std::string_view bytes) { send(bytes); }

bool SimulatedTransceiver::byHand(const std::function<bool()>& action) {
    if (!state_.powered || !action()) return false;
    reportChanges(state_.autoInformation, now_);
    if (!busy_) {
        const Turn turn(*this);
        handlePending();
    }
    return true;
}

bool SimulatedTransceiver::tune(int hertz) {
    return byHand([&] { return state_.tune(state_.active, {hertz, state_.activeTuning().mode}); });
}

bool SimulatedTransceiver::tuneBy(int hertz) {
    // Checked first: the sum of two large numbers would overflow.
    if (hertz < -highestFrequency || hertz > highestFrequency) return false;
    return tune(state_.activeTuning().frequency + hertz);
}

bool SimulatedTransceiver::setMode(char code) {
    return byHand([&] { return state_.tune(state_.active, {state_.activeTuning().frequency, code}); });
}

bool SimulatedTransceiver::setPower(int watts) { return operate("PC" + decimalField(watts, 3)); }

bool SimulatedTransceiver::setAfGain(int gain) { return operate("AG0" + decimalField(gain, 3)); }

bool SimulatedTransceiver::operate(std::string_view commands) {
    bool accepted = true;
    while (!commands.empty()) {
        const auto command = commands.substr(0, commands.find(';'));
        commands.remove_prefix(std::min(commands.size(), command.size() + 1));
        accepted = byHand([&] { return carryOut(command, now_).accepted; }) && accepted;
    }
    return accepted;
}

void SimulatedTransceiver::hear(int level, int offset) {
    state_.signalLevel = std::clamp(level, 0, strongestSignal);
    state_.signalOffset = std::clamp(offset, -highestFrequency, highestFrequency);
    byHand([] { return true; });
}

bool SimulatedTransceiver::spin(Time duration) {
    return byHand([&] {
        spin_.start(now_, duration);
        return true;
    });
}

bool SimulatedTransceiver::programChannel(int number, const MemoryChannel& channel) {
    return byHand([&] {
        return state_.memories.write(number, channel.tuning) &&
               state_.memories.writeTag(number, channel.tag, channel.tagShown);
    });
}

bool SimulatedTransceiver::clearChannel(int number) {
    return byHand([&] { return state_.clearChannel(number); });
}

void SimulatedTransceiver::setPowered(bool powered) {
    if (powered == state_.powered) return;
    if (powered) {
        state_.powered = true;
        byHand([] { return true; });
        return;
    }
    operate("PS0");
}

std::string SimulatedTransceiver::ask(std::string_view command) const {
    RadioState copy = state_;
    const Reply reply = execute(withoutTerminator(command), copy);
    if (!reply.accepted) return "?;";
    return reply.answer.empty() ? std::string() : reply.answer + ";";
}

}  // namespace simulator
