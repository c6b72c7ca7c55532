#include "memories/memory_entry.h"

#include <algorithm>

#include "wire/cat_command.h"
#include "wire/decimal_number.h"
#include "wire/operating_modes.h"
#include "wire/utf8.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

bool isControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7f; }

}  // namespace

MemoryFrequencyEntry memoryFrequencyEntry(std::string_view typed) {
    if (typed.empty()) return {{}, true};
    const auto megahertz = decimalNumber(trimmed(typed));
    if (!megahertz || *megahertz < lowestMegahertz) return {{}, false, &frequencyTooLow};
    if (*megahertz > highestMegahertz) return {{}, false, &frequencyTooHigh};
    return {zeroPadded(decimalOrZero(without(withDecimals(*megahertz, 6), ".")), 9)};
}

std::optional<std::string> memoryModeTyped(std::string_view typed) {
    const std::string_view text = trimmed(typed);
    if (text.empty()) return std::nullopt;
    const char first = text.front();
    const bool sendable = first != ';' && !isControl(first) && isAscii(text.substr(0, 1));
    const bool namesMode = std::ranges::any_of(text, [](char c) { return operatingMode(c) != nullptr; });
    return std::string(1, namesMode && sendable ? first : operatingModes.front().code);
}

std::string memoryModeField(int entry) {
    if (entry < 1 || entry > static_cast<int>(operatingModes.size())) return {noModeCode};
    return {operatingModes[static_cast<std::size_t>(entry) - 1].code};
}

std::string memoryTag(std::string_view typed) {
    std::string tag;
    if (!isUtf8(typed)) return tag;
    for (std::size_t count = 0; count < tagLength && !typed.empty();) {
        const std::string_view sign = firstSign(typed);
        typed.remove_prefix(sign.size());
        if (sign != "\r\n" && (sign.size() > 1 || sign == ";")) continue;
        tag += sign;
        ++count;
    }
    return tag;
}

}  // namespace corvane
