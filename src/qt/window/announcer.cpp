#include "qt/window/announcer.h"

#include <QAccessible>
#include <algorithm>

#include "display/spoken_state.h"
#include "qt/window/control_texts.h"

namespace corvane {

namespace {

using namespace std::chrono_literals;

constexpr auto gap = 250ms;         // between two, so that a screen reader fetches the first before it changes
constexpr auto reportTime = 600ms;  // for the transceiver to begin to report a new frequency
constexpr auto settleTime = 200ms;  // after a report; others may follow

}  // namespace

Announcer::Announcer(Display& display, ChangeQueue& queue, QWidget* parent) : QWidget(parent), display_(display) {
    setObjectName("announcements");
    setFixedSize(1, 1);
    due_.setSingleShot(true);
    connect(&due_, &QTimer::timeout, this, &Announcer::announce);
    views_.push_back(display.announcements.addView(queue, [this] { collect(); }));
    for (TextField* field : {&display.linkStatusField, &display.linkMessageField, &display.callNoticeField,
                             &display.textMemoryNoticeField, &display.memoryTextNoticeField, &display.watchNoticeField})
        follow(*field, queue, {});
    follow(display.sentTextMemoryField, queue, "Sent: ");
    for (Control* control :
         std::initializer_list<Control*>{&display.vqFreqAButton, &display.vqFreqBButton, &display.activeVfoField,
                                         &display.modeField, &display.freqTextField, &display.vqMemAButton})
        views_.push_back(control->addView(queue, [this] {
            if (tuning_) due_.start(settleTime);
        }));
}

// Says the first line of every new text of the field.
void Announcer::follow(TextField& field, ChangeQueue& queue, const std::string& before) {
    views_.push_back(field.addView(queue, [this, &field, before, last = field.stringValue()]() mutable {
        if (std::exchange(last, field.stringValue()) == field.stringValue() || last.empty()) return;
        display_.announcements.say(before + last.substr(0, last.find('\n')));
    }));
}

void Announcer::collect() {
    for (const std::string& text : display_.announcements.take()) texts_ += QString::fromStdString(text);
    texts_.removeDuplicates();
    if (display_.announcements.takeTuning()) {
        tuning_ = true;
        due_.start(reportTime);
    } else if (!due_.isActive() && !texts_.isEmpty()) {
        const auto since = said_.isValid() ? std::chrono::milliseconds(said_.elapsed()) : gap;
        due_.start(std::max(0ms, gap - since));
    }
}

void Announcer::announce() {
    if (std::exchange(tuning_, false)) texts_ += QString::fromStdString(spokenTuning(display_));
    texts_.removeAll(QString());
    if (texts_.isEmpty()) return;
    setAccessibleName(texts_.join(", "));
    texts_.clear();
    said_.start();
    QAccessibleEvent shows(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shows);
    emit announced(accessibleName());
}

}  // namespace corvane
