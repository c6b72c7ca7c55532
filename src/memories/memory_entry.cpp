#include "memories/memory_entry.h"

#include "wire/cat_command.h"
#include "wire/decimal_number.h"
#include "wire/utf8.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr std::string_view modeCodes = "123456789ABCDEF";

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
    return text.find_first_of(modeCodes) != std::string_view::npos && sendable ? std::string(1, first) : "1";
}

std::string memoryModeField(int entry) {
    return std::string(1, static_cast<char>(entry < 10 ? '0' + entry : 'A' + (entry - 10)));
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
