#include "simulator/knob_spin.h"

#include <algorithm>
#include <numeric>

namespace simulator {

namespace {

using namespace std::chrono_literals;

constexpr Time cycle = 8s;
constexpr std::array shares{330, 272, 243, 34};  // in the order of Report
constexpr int reportsPerCycle = std::accumulate(shares.begin(), shares.end(), 0);
static_assert(reportsPerCycle == 879);

}  // namespace

void KnobSpin::start(Time now, Time duration) {
    begin_ = now;
    end_ = now + duration;
    taken_ = 0;
    credit_ = {};
}

std::optional<Time> KnobSpin::nextReport() const {
    const Time next = begin_ + cycle * taken_ / reportsPerCycle;
    if (next >= end_) return std::nullopt;
    return next;
}

KnobSpin::Report KnobSpin::take() {
    // Each kind earns its share; the kind with the most credit pays for the report. So all kinds are mixed evenly.
    for (std::size_t kind = 0; kind < shares.size(); ++kind) credit_[kind] += shares[kind];
    const auto richest = std::ranges::max_element(credit_);
    *richest -= reportsPerCycle;
    ++taken_;
    return static_cast<Report>(richest - credit_.begin());
}

}  // namespace simulator
