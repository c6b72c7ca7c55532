#include "memories/memory_mode_names.h"

#include <algorithm>

#include "wire/letter_case.h"
#include "wire/operating_modes.h"

namespace corvane {

std::optional<char> memoryModeCode(std::string_view mode, std::string_view comment) {
    if (mode.empty()) return std::nullopt;
    for (const OperatingMode& own : operatingModes) {
        if (sameWord(own.name, mode)) return own.code;
        if (sameWord(own.name, comment) && sameWord(own.inFile, mode)) return own.code;
    }
    for (const OperatingMode& own : operatingModes)
        if (std::ranges::any_of(own.fromFile, [&](std::string_view name) { return sameWord(name, mode); }))
            return own.code;
    return std::nullopt;
}

}  // namespace corvane
