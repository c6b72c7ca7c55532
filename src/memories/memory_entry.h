// Turns what the operator types into a memory row into what the row keeps.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "memories/memory_channel.h"
#include "wire/tuning_range.h"

namespace corvane {

// A frequency in MHz, rounded to the nearest hertz: "14.235" gives the field "014235000". An empty text clears the row.
// Any text but a frequency from 0.03 to 75, both included, empties the field and gives a warning.
struct MemoryFrequencyEntry {
    std::string field;
    bool clearsRow = false;
    const EntryWarning* warning = nullptr;

    bool operator==(const MemoryFrequencyEntry&) const = default;
};
MemoryFrequencyEntry memoryFrequencyEntry(std::string_view typed);

// The mode field for a typed text: its first character, if that can be sent and the text has a mode code anywhere;
// otherwise "1". Nothing for a blank text.
std::optional<std::string> memoryModeTyped(std::string_view typed);

// The mode field for an entry of the mode pop-up: 2 gives "2", 11 gives "B".
std::string memoryModeField(int entry);

// The tag for a typed text: its first twelve ASCII characters. Accented letters, joined signs and ";", which would end
// the command early, are left out. "Caf\u00e9 M\u00fcnchen 40m" gives "Caf Mnchen 4".
std::string memoryTag(std::string_view typed);

}  // namespace corvane
