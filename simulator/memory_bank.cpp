#include "simulator/memory_bank.h"

#include <array>

#include "simulator/operating_mode.h"

namespace simulator {

namespace {

constexpr int firstOfGroup = 501;
constexpr std::array groupFrequencies{5'330'500, 5'346'500, 5'357'000, 5'371'500, 5'403'500};

bool canBeWritten(int channel) { return channel >= 1 && channel <= MemoryBank::lastChannel; }

}  // namespace

MemoryBank::MemoryBank() {
    int channel = firstOfGroup;
    for (const int frequency : groupFrequencies) channels_[channel++].tuning = {frequency, '2'};
}

const MemoryChannel* MemoryBank::find(int channel) const {
    const auto found = channels_.find(channel);
    return found == channels_.end() ? nullptr : &found->second;
}

bool MemoryBank::write(int channel, Tuning tuning) {
    if (!canBeWritten(channel) || !isInRange(tuning.frequency) || modeOfCode(tuning.mode) == nullptr) return false;
    channels_[channel].tuning = tuning;
    return true;
}

bool MemoryBank::writeTag(int channel, std::string_view tag, bool shown) {
    const auto found = channels_.find(channel);
    if (!canBeWritten(channel) || found == channels_.end()) return false;
    std::string kept(tag.substr(0, tagLength));
    kept.erase(kept.find_last_not_of(' ') + 1);
    found->second.tag = kept;
    found->second.tagShown = shown;
    return true;
}

bool MemoryBank::clear(int channel) {
    if (!canBeWritten(channel)) return false;
    channels_.erase(channel);
    return true;
}

}  // namespace simulator
