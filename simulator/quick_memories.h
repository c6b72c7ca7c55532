#pragma once

#include <deque>
#include <optional>

#include "simulator/tuning.h"

namespace simulator {

// The quick memories: the five or ten tunings that the operator stored last. Recalling goes from the newest to the
// oldest and then starts again; a tuning just stored is recalled next.
class QuickMemories {
public:
    void put(Tuning tuning, std::size_t capacity) {
        kept_.push_front(tuning);
        if (kept_.size() > capacity) kept_.resize(capacity);
        next_ = 0;
    }

    std::optional<Tuning> recall() {
        if (kept_.empty()) return std::nullopt;
        const Tuning recalled = kept_[next_];
        next_ = (next_ + 1) % kept_.size();
        return recalled;
    }

private:
    std::deque<Tuning> kept_;
    std::size_t next_ = 0;
};

}  // namespace simulator
