// What the transceiver has reported, under what other programs have just set: what was set is what is read next.
#pragma once

#include <array>
#include <chrono>
#include <optional>

#include "share/shared_item.h"

namespace corvane {

// A time of the share room's own clock.
using ShareTime = std::chrono::milliseconds;

class SharedValues {
public:
    static constexpr ShareTime settling{300};   // how long a set value outlives reports that differ
    static constexpr ShareTime freshness{500};  // how long a report counts while the transceiver sends none by itself

    // A report. One that differs from a value that was set less than 300 ms ago may be older than the setting: it
    // counts once the set value has been reported, too, or the time is over.
    void take(Item item, int value, ShareTime now);
    // A value that is being set. It settles from the moment at which its command is sent.
    void set(Item item, int value);
    void sent(Item item, ShareTime now);
    void forget(Item item) { slots_[index(item)] = {}; }
    void forgetAll() { slots_ = {}; }
    // What was reported may have changed unheard; what has been set stays, and so does the side in use.
    void doubtReports();

    // Whether the transceiver reports changes by itself.
    void setReporting(bool reporting) { reporting_ = reporting; }
    bool reporting() const { return reporting_; }

    // Nothing when the value is not known, or not for sure.
    std::optional<int> value(Item item, ShareTime now) const;
    std::optional<int> reported(Item item) const { return slots_[index(item)].reported; }

    // Ends the settling whose time is over; calls `doubt` with each item that was set and not reported so.
    template <typename Doubt>
    void settle(ShareTime now, Doubt doubt) {
        for (std::size_t i = 0; i < slots_.size(); ++i) {
            Slot& slot = slots_[i];
            if (!slot.set || !slot.settled || *slot.settled > now) continue;
            const bool doubtful = slot.reported != slot.set;
            slot.set.reset();
            if (doubtful) doubt(static_cast<Item>(i));
        }
    }
    bool unsettled() const;

private:
    struct Slot {
        std::optional<int> reported;
        ShareTime at{};  // of the report
        std::optional<int> set;
        std::optional<ShareTime> settled;  // nothing while the command waits
    };
    std::array<Slot, itemCount> slots_{};
    bool reporting_ = false;
};

}  // namespace corvane
