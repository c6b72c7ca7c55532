#include "on_air/on_air.h"

#include <algorithm>

#include "controls/class_segments.h"
#include "display/spoken_state.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr std::string_view timeOutKey = "onAirTimeOut";
constexpr int usualTimeOut = 10;
constexpr std::string_view outOfSegment = "out of your segment";

std::string minutesText(std::chrono::minutes time) {
    return std::to_string(time.count()) + (time.count() == 1 ? " minute" : " minutes");
}

}  // namespace

std::optional<long long> transmitFrequency(const SharedTransceiver& transceiver) {
    const auto active = transceiver.reported(Item::vfo);
    if (!active) return std::nullopt;
    const int side = transceiver.reported(Item::split) == 1 ? 1 - *active : *active;
    const auto hertz = transceiver.reported(ofSide(Item::frequencyA, side));
    if (!hertz) return std::nullopt;
    return *hertz + transceiver.reported(ofSide(Item::transmitClarifierA, side)).value_or(0);
}

OnAir::OnAir(Display& display, const SharedTransceiver& transceiver, Voice& voice, SettingsStore& settings,
             NotificationCenter& notices, Scheduler& scheduler)
    : display_(display),
      transceiver_(transceiver),
      voice_(voice),
      settings_(settings),
      notices_(notices),
      tasks_(scheduler) {
    std::vector<std::string> entries;
    for (const int minutes : timeOuts)
        entries.push_back(minutes == 0 ? "Off" : minutesText(std::chrono::minutes(minutes)));
    display_.onAirTimeOutPopUpButton.setEntries(std::move(entries));
    restoreTimeOut();
}

void OnAir::follow() {
    const Facts facts{transceiver_.reported(Item::transmit), transmitFrequency(transceiver_),
                      display_.ownClassPopUpButton.indexOfSelectedItem()};
    if (shown_ == facts) return;
    shown_ = facts;
    const auto& [transmit, hertz, ownClass] = facts;
    showTransmitter(transmit);
    const bool outside =
        hertz && !mayTransmit(*hertz, licenceClass(display_.ownClassPopUpButton.titleOfSelectedItem()));
    display_.segmentField.setStringValue(outside ? outOfSegment : "");
    followOver(transmit.value_or(0) != 0);
}

void OnAir::showTransmitter(std::optional<int> transmit) {
    const bool transmits = transmit.value_or(0) != 0;
    display_.onAirField.setStringValue(!transmit ? "" : transmits ? onAirText : receivingText);
    display_.onAirField.setTextColor(transmits ? Color::red : Color::none);
}

void OnAir::followOver(bool transmits) {
    if (transmits == began_.has_value()) return;
    began_ = transmits ? std::optional(tasks_.now()) : std::nullopt;
    warned_ = false;
    planWarning();
}

// With break-in, overs are short and many: one planned look serves them all.
void OnAir::planWarning() {
    if (!began_ || warned_ || timeOut_ == timeOut_.zero()) return;
    const auto due = *began_ + timeOut_;
    if (looks_ && *looks_ <= due) return;
    looks_ = due;
    const auto left = std::chrono::ceil<Scheduler::Duration>(due - tasks_.now());
    tasks_.after(std::max(left, Scheduler::Duration::zero()), [this, due] {
        if (looks_ != due) return;  // another look is planned before
        looks_.reset();
        const bool isDue = began_ && !warned_ && timeOut_ != timeOut_.zero() && tasks_.now() >= *began_ + timeOut_;
        isDue ? warn() : planWarning();
    });
}

void OnAir::warn() {
    warned_ = true;
    const std::string text = "On air for " + minutesText(timeOut_);
    voice_.playSystemSound("Glass");
    voice_.speak(text);
    UserNotification notice;
    notice.title = text;
    notice.informativeText = "The transceiver still transmits. Is that what you want?";
    notices_.deliver(notice, [](NotificationId) {});
}

void OnAir::restoreTimeOut() {
    const auto stored = decimal(settings_.text(timeOutKey).value_or(""));
    const int minutes = stored && std::ranges::count(timeOuts, *stored) ? *stored : usualTimeOut;
    timeOut_ = std::chrono::minutes(minutes);
    display_.onAirTimeOutPopUpButton.selectItem(
        static_cast<int>(std::ranges::find(timeOuts, minutes) - timeOuts.begin()));
    planWarning();
}

void OnAir::chooseTimeOut(PopUpButton& sender) {
    const int index = sender.indexOfSelectedItem();
    if (index < 0) return;
    const int minutes = timeOuts[static_cast<std::size_t>(index)];
    timeOut_ = std::chrono::minutes(minutes);
    settings_.setText(timeOutKey, std::to_string(minutes));
    planWarning();
}

}  // namespace corvane
