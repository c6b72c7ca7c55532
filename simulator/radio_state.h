#pragma once

#include <array>
#include <optional>
#include <string>

#include "simulator/band_stack.h"
#include "simulator/memory_bank.h"
#include "simulator/menu.h"
#include "simulator/panel_settings.h"
#include "simulator/quick_memories.h"
#include "simulator/text_memories.h"
#include "simulator/tuning.h"

namespace simulator {

enum class Side { a, b };

// One of the two sides. On a memory channel it uses a copy, so that tuning does not change the channel; its VFO keeps
// its own tuning.
struct VfoSide {
    Tuning vfo;
    int channel = 1;
    std::optional<Tuning> recalled;

    const Tuning& tuning() const { return recalled ? *recalled : vfo; }
};

// All settings of the transceiver. Each operation does what a key does; it returns false and changes nothing if the
// transceiver would refuse.
struct RadioState {
    bool powered = true;
    bool awake = false;  ///< while switched off: a first "PS1;" has woken the link
    bool autoInformation = false;
    bool transmitting = false;  ///< a text or its tuner
    bool keyed = false;         ///< by "TX1;"
    int signalLevel = 0;        ///< 0 to 255, from the antenna
    int signalOffset = 0;       ///< hertz from the dial frequency to the signal
    char agc = '4';             ///< as set: 0 off, 1 fast, 2 mid, 3 slow, 4 automatic
    char roofingFilter = '2';
    bool tunerOn = false;
    Side active = Side::a;
    std::array<VfoSide, 2> sides;
    BandStack bands;
    MemoryBank memories;
    QuickMemories quickMemories;
    PanelSettings panel;
    Menu menu;
    TextMemories texts;

    VfoSide& side(Side which) { return sides[static_cast<std::size_t>(which)]; }
    const VfoSide& side(Side which) const { return sides[static_cast<std::size_t>(which)]; }
    const Tuning& tuning(Side which) const { return side(which).tuning(); }
    const Tuning& activeTuning() const { return tuning(active); }

    bool tune(Side which, Tuning tuning);
    bool selectBand(int band);
    bool selectChannel(int channel);
    bool toggleMemory();
    void swapVfos();
    bool copyMemoryToVfo();
    void putQuickMemory();
    bool recallQuickMemory();
    bool zeroIn();
    bool clearChannel(int channel);
    int meter() const { return transmitting || keyed ? 0 : signalLevel; }
};

// The answers to read commands, without ";": "FA014250000".
std::string frequencyReading(const RadioState& state, Side side);

// "IF000014250000+000000200000" for side A and "OI..." for side B: channel, frequency, clarifier, mode, kind.
std::string informationReading(const RadioState& state, Side side);

// The same layout for a memory channel: "MR001014250000+000000210000".
std::string channelReading(int number, const MemoryChannel& channel);

std::string selectedChannelReading(const RadioState& state);
std::string modeReading(const RadioState& state);
std::string vfoReading(const RadioState& state);
std::string agcReading(const RadioState& state);
std::string roofingFilterReading(const RadioState& state);
std::string meterReading(const RadioState& state);
std::string tunerReading(const RadioState& state);
std::string transmitReading(const RadioState& state);

}  // namespace simulator
