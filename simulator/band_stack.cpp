#include "simulator/band_stack.h"

namespace simulator {

namespace {

struct Band {
    int lowest;
    int highest;
    Tuning initial;
};

constexpr std::array<Band, BandStack::bandCount> bands{{
    {1'800'000, 2'000'000, {1'845'000, '1'}},
    {3'500'000, 4'000'000, {3'750'000, '1'}},
    {5'250'000, 5'450'000, {5'357'000, '2'}},
    {7'000'000, 7'300'000, {7'150'000, '1'}},
    {10'100'000, 10'150'000, {10'116'000, '3'}},
    {14'000'000, 14'350'000, {14'200'000, '2'}},
    {18'068'000, 18'168'000, {18'130'000, '2'}},
    {21'000'000, 21'450'000, {21'285'000, '2'}},
    {24'890'000, 24'990'000, {24'940'000, '2'}},
    {28'000'000, 29'700'000, {28'400'000, '2'}},
    {50'000'000, 54'000'000, {50'150'000, '2'}},
    {lowestFrequency, highestFrequency, {9'650'000, '5'}},  // every frequency outside the bands above
}};

}  // namespace

BandStack::BandStack() {
    for (std::size_t band = 0; band < bands.size(); ++band) last_[band] = bands[band].initial;
}

void BandStack::remember(Tuning tuning) { last_[static_cast<std::size_t>(bandOf(tuning.frequency))] = tuning; }

std::optional<Tuning> BandStack::recall(int band) const {
    if (band < 0 || band >= bandCount) return std::nullopt;
    return last_[static_cast<std::size_t>(band)];
}

int BandStack::bandOf(int frequency) {
    int band = 0;
    for (const Band& candidate : bands) {
        if (frequency >= candidate.lowest && frequency <= candidate.highest) return band;
        ++band;
    }
    return bandCount - 1;
}

}  // namespace simulator
