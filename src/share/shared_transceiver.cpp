#include "share/shared_transceiver.h"

#include <algorithm>
#include <utility>

namespace corvane {

SharedTransceiver::SharedTransceiver(Link& link, Scheduler& scheduler)
    : link_(link), tasks_(scheduler), paced_([this](Item item, const std::string& command) {
          link_.sendCommand(command);
          values_.sent(item, now_);
      }) {}

void SharedTransceiver::takeResponse(std::string_view response) {
    ++heard_;
    if (silent_ || (off_ && response != "PS0")) comeBack();
    const auto vfo = value(Item::vfo);
    forEachReported(response, values_.reported(Item::vfo).value_or(0),
                    [this](Item item, int value) { take(item, value); });
    if (vfo && value(Item::vfo) != vfo) onVfoChanged();
}

void SharedTransceiver::take(Item item, int value) {
    values_.take(item, value, now_);
    if (item == Item::autoInformation) {
        values_.setReporting(value == 1);
        reportingInDoubt_ = false;
    }
    if (item == Item::switchedOn) off_ = value == 0;
    // Only a report from after the keying ends it here: an older one leaves the program responsible.
    if (item == Item::transmit && value == 0 && this->value(Item::transmit) == 0) setKeyedBy(std::nullopt);
    if (std::exchange(questions_[index(item)], {}).asked) onAnswered();
}

// What was known may have changed meanwhile, and a transceiver that was switched on sends no reports by itself.
void SharedTransceiver::comeBack() {
    silent_ = off_ = false;
    values_.forgetAll();
    questions_ = {};
    doubtReporting();
}

// Nothing is asked before a program asks for something: then "AI;" goes first.
void SharedTransceiver::doubtReporting() {
    values_.setReporting(false);
    reportingInDoubt_ = true;
}

// The switch is not answered, and what changed while it was off was not reported.
void SharedTransceiver::noteSent(std::string_view command) {
    if (command == "AI1;") values_.doubtReports();
    if (command == "AI0;" || command == "AI1;") doubtReporting();
}

void SharedTransceiver::portOpened() {
    if (std::exchange(open_, true)) return;
    if (std::exchange(unkeyOwed_, false)) link_.sendCommand("TX0;");
}

void SharedTransceiver::portClosing() {
    unkeyOwed_ = keyedBy_.has_value();
    unkey();
}

void SharedTransceiver::portClosed() {
    if (!std::exchange(open_, false)) return;
    // A line that took no bytes to the end took no "TX0;" either.
    unkeyOwed_ = keyedBy_.has_value() || (unkeyOwed_ && link_.waitingBytes() > 0);
    setKeyedBy(std::nullopt);
    silent_ = off_ = false;
    paced_.drop();
    values_.forgetAll();
    values_.setReporting(false);
    questions_ = {};
    onAnswered();
}

SharedTransceiver::Contact SharedTransceiver::contact() {
    if (!link_.isOpen()) return Contact::closed;
    const bool off = off_ || value(Item::switchedOn) == 0;
    if (!off && !silent_) return Contact::present;
    if (now_ >= nextProbe_) {
        nextProbe_ = now_ + retry;
        link_.sendCommand("PS;");
    }
    return off ? Contact::off : Contact::silent;
}

std::optional<int> SharedTransceiver::reported(Item item) const {
    return open_ && !off_ && values_.reporting() ? values_.reported(item) : std::nullopt;
}

bool SharedTransceiver::ask(Item item) {
    Question& question = questions_[index(item)];
    if (question.asked) return true;
    if (!link_.isOpen() || congested() || now_ < question.again) return false;
    if (std::exchange(reportingInDoubt_, false) && item != Item::autoInformation) ask(Item::autoInformation);
    question = {now_, heard_, question.again};
    wake();
    link_.sendCommand(requestFor(item, values_.reported(Item::vfo).value_or(0)));
    return true;
}

void SharedTransceiver::set(Item item, int value, std::string command) {
    values_.set(item, value);
    send(item, std::move(command));
}

void SharedTransceiver::assume(Item item, int value) {
    wake();
    values_.set(item, value);
    values_.sent(item, now_);
}

void SharedTransceiver::send(Item kind, std::string command) {
    wake();
    paced_.submit(kind, std::move(command));
    pump();
}

void SharedTransceiver::pump() {
    if (!congested()) paced_.pump(now_);
}

void SharedTransceiver::key(unsigned program) {
    set(Item::transmit, 1, "TX1;");
    setKeyedBy(program);
}

void SharedTransceiver::release(unsigned program) {
    if (keyedBy_ == program) unkey();
}

void SharedTransceiver::unkey() {
    if (!keyedBy_) return;
    set(Item::transmit, 0, "TX0;");
    paced_.flush(now_);
    setKeyedBy(std::nullopt);
}

void SharedTransceiver::cancelTuning() { paced_.drop(tuning); }

void SharedTransceiver::setKeyedBy(std::optional<unsigned> program) {
    if (std::exchange(keyedBy_, program) != program) onKeyed();
}

void SharedTransceiver::noteActivity() {
    wake();
    activeUntil_ = now_ + std::chrono::seconds(1);
}

// Nobody counted while the clock stood still: it goes on later than any wait that it knows.
void SharedTransceiver::wake() {
    if (std::exchange(ticking_, true)) return;
    now_ += std::chrono::seconds(1);
    tasks_.after(beat, [this] { tick(); });
}

bool SharedTransceiver::busy() const {
    const bool asking = std::ranges::any_of(questions_, [](const Question& open) { return open.asked.has_value(); });
    return asking || keyedBy_ || now_ < activeUntil_ || !paced_.empty() || values_.unsettled();
}

void SharedTransceiver::tick() {
    now_ += beat;
    pump();
    // A setting that was not reported may have been refused: the transceiver itself says what holds.
    values_.settle(now_, [this](Item item) { ask(item); });
    expireQuestions();
    onBeat();
    ticking_ = busy();
    if (ticking_) tasks_.after(beat, [this] { tick(); });
}

void SharedTransceiver::expireQuestions() {
    bool expired = false;
    for (Question& question : questions_) {
        if (!question.asked || now_ - *question.asked < patience) continue;
        if (heard_ == question.heard) silent_ = true;
        question = {std::nullopt, 0, now_ + retry};
        expired = true;
    }
    if (expired) onAnswered();
}

}  // namespace corvane
