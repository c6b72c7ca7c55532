#include "share/shared_values.h"

#include <algorithm>

namespace corvane {

void SharedValues::take(Item item, int value, ShareTime now) {
    Slot& slot = slots_[index(item)];
    slot.reported = value;
    slot.at = now;
    if (slot.set == value) slot.set.reset();
}

void SharedValues::set(Item item, int value) {
    Slot& slot = slots_[index(item)];
    slot.set = value;
    slot.settled.reset();
}

void SharedValues::doubtReports() {
    for (std::size_t i = 0; i < slots_.size(); ++i)
        if (i != index(Item::vfo)) slots_[i].reported.reset();
}

void SharedValues::sent(Item item, ShareTime now) { slots_[index(item)].settled = now + settling; }

std::optional<int> SharedValues::value(Item item, ShareTime now) const {
    const Slot& slot = slots_[index(item)];
    if (slot.set) return slot.set;
    return reporting_ || now - slot.at <= freshness ? slot.reported : std::nullopt;
}

bool SharedValues::unsettled() const {
    return std::ranges::any_of(slots_, [](const Slot& slot) { return slot.set.has_value(); });
}

}  // namespace corvane
