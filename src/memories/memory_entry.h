// What the operator types into a memory row, as the row keeps it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "memories/memory_channel.h"
#include "wire/tuning_range.h"

namespace corvane {

// A frequency in MHz: "14.235" gives the field "014235000", to the nearest hertz. Nothing typed clears the row; a text
// that is no frequency from 0.03 to 75, both included, empties the field and is warned of.
struct MemoryFrequencyEntry {
    std::string field;
    bool clearsRow = false;
    const EntryWarning* warning = nullptr;

    bool operator==(const MemoryFrequencyEntry&) const = default;
};
MemoryFrequencyEntry memoryFrequencyEntry(std::string_view typed);

// A mode code as text: its first character, or "1" when none of the text's characters is a mode code. Nothing for a
// text without a character.
std::optional<std::string> memoryModeTyped(std::string_view typed);

// An entry of the mode pop-up as a mode field: 2 gives "2", 11 gives "B".
std::string memoryModeField(int entry);

// What a tag keeps of a text: its first twelve ASCII characters, without accented letters, signs made of several, and
// ";", which would end the command that writes it. "Caf\u00e9 M\u00fcnchen 40m" gives "Caf Mnchen 4".
std::string memoryTag(std::string_view typed);

}  // namespace corvane
