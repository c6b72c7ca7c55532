// The chips: switches that choose which entries of the lists and of the band map are shown. A group without a lit chip
// shows everything.
#pragma once

#include <array>
#include <cstddef>

#include "display/control.h"

namespace corvane {

enum class Chip {
    all,  // is lit while no other is; a press puts the others out
    thisBand,
    cw,
    phone,
    data,
    pota,
    sota,
    netLogger,
    net,
    mediumWave,
    memory,
    autoMemory
};

// What a chip is asked about. The kinds matter on the map only: a table has entries of one kind.
enum class ChipGroup { all, band, mode, kind };

struct FilterChip {
    Chip chip;
    ChipGroup group;
    Outlet outlet;
};

// In the order of Chip.
inline constexpr std::array filterChips{
    FilterChip{Chip::all, ChipGroup::all, {"allChip", 0, "All", "Show everything", "Put the other chips out."}},
    FilterChip{Chip::thisBand,
               ChipGroup::band,
               {"thisBandChip", 0, "This band", "Only this band", "Only what is on the band of the active VFO."}},
    FilterChip{Chip::cw, ChipGroup::mode, {"cwChip", 0, "CW", "CW", "Only CW and the other lit modes."}},
    FilterChip{Chip::phone,
               ChipGroup::mode,
               {"phoneChip", 0, "Phone", "Phone", "Only SSB, AM and FM, and the other lit modes."}},
    FilterChip{Chip::data,
               ChipGroup::mode,
               {"dataChip", 0, "Data", "Data", "Only FT8, RTTY and the like, and the other lit modes."}},
    FilterChip{Chip::pota, ChipGroup::kind, {"potaChip", 0, "POTA", "POTA spots", "Only the lit kinds."}},
    FilterChip{Chip::sota, ChipGroup::kind, {"sotaChip", 0, "SOTA", "SOTA spots", "Only the lit kinds."}},
    FilterChip{
        Chip::netLogger, ChipGroup::kind, {"netLoggerChip", 0, "NetLogger", "NetLogger nets", "Only the lit kinds."}},
    FilterChip{Chip::net, ChipGroup::kind, {"netChip", 0, "Nets", "Nets of the directory", "Only the lit kinds."}},
    FilterChip{Chip::mediumWave,
               ChipGroup::kind,
               {"mediumWaveChip", 0, "Stations", "Medium-wave stations", "Only the lit kinds."}},
    FilterChip{Chip::memory, ChipGroup::kind, {"memoryChip", 0, "Memories", "Memory channels", "Only the lit kinds."}},
    FilterChip{
        Chip::autoMemory, ChipGroup::kind, {"autoMemoryChip", 0, "Auto", "Auto memories", "Only the lit kinds."}},
};
static_assert(
    [] {
        for (std::size_t i = 0; i < filterChips.size(); ++i)
            if (filterChips[i].chip != static_cast<Chip>(i)) return false;
        return true;
    }(),
    "in the order of Chip");

}  // namespace corvane
