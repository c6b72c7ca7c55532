// Whether the transceiver transmits, whether it may where it would, and a warning when it has for long. It only tells:
// nothing is sent from here.
#pragma once

#include <array>
#include <optional>

#include "app/voice.h"
#include "display/display.h"
#include "platform/notification_center.h"
#include "platform/settings_store.h"
#include "platform/tasks.h"
#include "share/shared_transceiver.h"

namespace corvane {

// The frequency that the transceiver would transmit on, in hertz; nothing while that of its side is not known for sure.
// It is that of the active side, or with split of the other one: its VFO or its memory channel, moved by its transmit
// clarifier. Split and clarifier count as off until the transceiver reports them; nobody asks for split.
std::optional<long long> transmitFrequency(const SharedTransceiver& transceiver);

class OnAir {
public:
    // Minutes, in the order of the pop-up; 0 is off.
    static constexpr std::array timeOuts{0, 1, 3, 5, 10, 15};

    OnAir(Display& display, const SharedTransceiver& transceiver, Voice& voice, SettingsStore& settings,
          NotificationCenter& notices, Scheduler& scheduler);

    // To be called after each report of the transceiver, what switches its reports, and the end of the link.
    void follow();
    void restoreTimeOut();
    void chooseTimeOut(PopUpButton& sender);  // holds for a transmission that has begun, too

private:
    // All that the display shows of it.
    struct Facts {
        std::optional<int> transmit;
        std::optional<long long> hertz;
        int ownClass = -1;  // index of its entry
        bool operator==(const Facts&) const = default;
    };

    void showTransmitter(std::optional<int> transmit);
    void followOver(bool transmits);
    void planWarning();
    void warn();

    Display& display_;
    const SharedTransceiver& transceiver_;
    Voice& voice_;
    SettingsStore& settings_;
    NotificationCenter& notices_;
    Tasks tasks_;
    std::optional<Facts> shown_;
    std::chrono::minutes timeOut_{0};
    std::optional<std::chrono::system_clock::time_point> began_;  // the transmission that goes on
    bool warned_ = false;                                         // of it
    std::optional<std::chrono::system_clock::time_point> looks_;  // when it looks whether a warning is due
};

}  // namespace corvane
