#include "memories/memory_mode_names.h"

#include <algorithm>

#include "wire/letter_case.h"
#include "wire/operating_modes.h"

namespace corvane {

namespace {

static_assert(std::ranges::equal(memoryModeNames, operatingModes, {}, &MemoryModeName::code, &OperatingMode::code));

}  // namespace

const MemoryModeName* memoryModeName(char code) {
    const auto row = std::ranges::find(memoryModeNames, code, &MemoryModeName::code);
    return row == memoryModeNames.end() ? nullptr : &*row;
}

std::optional<char> memoryModeCode(std::string_view mode, std::string_view comment) {
    for (const OperatingMode& own : operatingModes) {
        if (sameWord(own.name, mode)) return own.code;
        if (sameWord(own.name, comment) && sameWord(memoryModeName(own.code)->name, mode)) return own.code;
    }
    for (const MemoryModeName& row : memoryModeNames)
        if (row.exact && sameWord(row.name, mode)) return row.code;
    for (const MemoryModeName& row : otherMemoryModeNames)
        if (sameWord(row.name, mode)) return row.code;
    return std::nullopt;
}

}  // namespace corvane
