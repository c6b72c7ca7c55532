#include "memories/memory_mode_names.h"

#include <algorithm>

#include "wire/operating_modes.h"

namespace corvane {

namespace {

bool sameWord(std::string_view left, std::string_view right) {
    const auto capital = [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; };
    return std::ranges::equal(left, right, {}, capital, capital);
}

}  // namespace

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
