// The families of operating modes by which operators choose what they work.
#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "display/filter_chips.h"
#include "wire/letter_case.h"

namespace corvane {

struct ModeStart {
    std::string_view start;  // of a mode's name
    Chip family;             // cw, phone or data
};

// Lists and transceivers name many modes. The first row that fits counts: "DATA-FM" is data.
inline constexpr std::array modeStarts{
    ModeStart{"CW", Chip::cw},      ModeStart{"DATA", Chip::data},  ModeStart{"FT", Chip::data},
    ModeStart{"RTTY", Chip::data},  ModeStart{"PSK", Chip::data},   ModeStart{"BPSK", Chip::data},
    ModeStart{"JS8", Chip::data},   ModeStart{"JT", Chip::data},    ModeStart{"OLIVIA", Chip::data},
    ModeStart{"MFSK", Chip::data},  ModeStart{"SSTV", Chip::data},  ModeStart{"VARA", Chip::data},
    ModeStart{"Q65", Chip::data},   ModeStart{"MSK", Chip::data},   ModeStart{"WSPR", Chip::data},
    ModeStart{"HELL", Chip::data},  ModeStart{"DIGI", Chip::data},  ModeStart{"THOR", Chip::data},
    ModeStart{"SSB", Chip::phone},  ModeStart{"LSB", Chip::phone},  ModeStart{"USB", Chip::phone},
    ModeStart{"AM", Chip::phone},   ModeStart{"FM", Chip::phone},   ModeStart{"DV", Chip::phone},
    ModeStart{"C4FM", Chip::phone}, ModeStart{"PHONE", Chip::phone}};

// Nothing for a mode that is not known or not told: "" and "OTHER".
constexpr std::optional<Chip> familyOf(std::string_view mode) {
    const auto row = std::ranges::find_if(
        modeStarts, [mode](const ModeStart& each) { return sameWord(mode.substr(0, each.start.size()), each.start); });
    return row == modeStarts.end() ? std::nullopt : std::optional(row->family);
}

}  // namespace corvane
