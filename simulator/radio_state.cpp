#include "simulator/radio_state.h"

#include <utility>

#include "simulator/decimal_field.h"
#include "simulator/operating_mode.h"

namespace simulator {

namespace {

constexpr std::string_view quickMemoryMenu = "030112";
constexpr std::size_t fewQuickMemories = 5;
constexpr std::size_t manyQuickMemories = 10;

char letter(Side side) { return side == Side::a ? 'A' : 'B'; }

/// From the channel to the shift: the part that IF, OI and MR share. Clarifier, tone and shift are never set.
std::string record(int channel, Tuning tuning, bool isMemory) {
    return decimalField(channel, 3) + decimalField(tuning.frequency, 9) + "+000000" + tuning.mode +
           (isMemory ? '1' : '0') + "0000";
}

}  // namespace

bool RadioState::tune(Side which, Tuning tuning) {
    if (!isInRange(tuning.frequency) || modeOfCode(tuning.mode) == nullptr) return false;
    VfoSide& tuned = side(which);
    if (tuned.recalled) {
        tuned.recalled = tuning;
        return true;
    }
    tuned.vfo = tuning;
    bands.remember(tuning);
    return true;
}

bool RadioState::selectBand(int band) {
    const auto last = bands.recall(band);
    if (!last) return false;
    side(active).recalled.reset();
    return tune(active, *last);
}

bool RadioState::selectChannel(int channel) {
    const MemoryChannel* memory = memories.find(channel);
    if (memory == nullptr) return false;
    side(active).channel = channel;
    side(active).recalled = memory->tuning;
    return true;
}

bool RadioState::toggleMemory() {
    VfoSide& toggled = side(active);
    if (!toggled.recalled) return selectChannel(toggled.channel);
    toggled.recalled.reset();
    return true;
}

void RadioState::swapVfos() { std::swap(sides[0].vfo, sides[1].vfo); }

bool RadioState::copyMemoryToVfo() {
    const MemoryChannel* memory = memories.find(side(active).channel);
    if (memory == nullptr) return false;
    side(Side::a).recalled.reset();
    return tune(Side::a, memory->tuning);
}

void RadioState::putQuickMemory() {
    const bool many = menu.value(quickMemoryMenu) == "1";
    quickMemories.put(activeTuning(), many ? manyQuickMemories : fewQuickMemories);
}

bool RadioState::recallQuickMemory() {
    const auto recalled = quickMemories.recall();
    if (!recalled) return false;
    side(active).recalled.reset();
    return tune(active, *recalled);
}

bool RadioState::zeroIn() {
    const Tuning now = activeTuning();
    if (!isCw(now.mode) || signalLevel == 0) return true;  // nothing to zero in on
    if (!tune(active, {now.frequency + signalOffset, now.mode})) return false;
    signalOffset = 0;
    return true;
}

bool RadioState::clearChannel(int channel) {
    if (!memories.clear(channel)) return false;
    for (VfoSide& each : sides)
        if (each.channel == channel) each.recalled.reset();
    return true;
}

std::string frequencyReading(const RadioState& state, Side side) {
    return std::string("F") + letter(side) + decimalField(state.tuning(side).frequency, 9);
}

std::string informationReading(const RadioState& state, Side side) {
    const VfoSide& told = state.side(side);
    const bool isMemory = told.recalled.has_value();
    return (side == Side::a ? "IF" : "OI") + record(isMemory ? told.channel : 0, told.tuning(), isMemory);
}

std::string channelReading(int number, const MemoryChannel& channel) {
    return "MR" + record(number, channel.tuning, true);
}

std::string selectedChannelReading(const RadioState& state) {
    return "MC" + decimalField(state.side(state.active).channel, 3);
}

std::string modeReading(const RadioState& state) { return std::string("MD0") + state.activeTuning().mode; }

std::string vfoReading(const RadioState& state) { return state.active == Side::a ? "VS0" : "VS1"; }

std::string agcReading(const RadioState& state) {
    const OperatingMode* mode = modeOfCode(state.activeTuning().mode);
    const bool isAutomatic = state.agc == '4' && mode != nullptr;
    return std::string("GT0") + (isAutomatic ? mode->automaticAgc : state.agc);
}

std::string roofingFilterReading(const RadioState& state) {
    // Answers use other codes than set commands: 6, 7, 9 and A for the filters set by 1, 2, 4 and 5.
    static constexpr std::string_view set = "1245";
    static constexpr std::string_view read = "679A";
    return std::string("RF0") + read[set.find(state.roofingFilter)];
}

std::string meterReading(const RadioState& state) { return "RM1" + decimalField(state.meter(), 3) + "000"; }

std::string transmitReading(const RadioState& state) {
    if (state.keyed) return "TX1";
    return state.transmitting ? "TX2" : "TX0";
}

std::string tunerReading(const RadioState& state) { return state.tunerOn ? "AC001" : "AC000"; }

}  // namespace simulator
