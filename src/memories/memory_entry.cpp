#include "memories/memory_entry.h"

#include <algorithm>
#include <array>

#include "wire/cat_command.h"
#include "wire/decimal_number.h"
#include "wire/utf8.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr std::string_view modeCodes = "123456789ABCDEF";

// What joins the character before it into one that is not ASCII any more: accents, keycaps, variation selectors.
struct CodePoints {
    char32_t first;
    char32_t last;
};
constexpr std::array joining{CodePoints{0x0300, 0x036F},   CodePoints{0x0483, 0x0489},  CodePoints{0x1AB0, 0x1AFF},
                             CodePoints{0x1DC0, 0x1DFF},   CodePoints{0x200C, 0x200D},  CodePoints{0x20D0, 0x20FF},
                             CodePoints{0xFE00, 0xFE0F},   CodePoints{0xFE20, 0xFE2F},  CodePoints{0x1F3FB, 0x1F3FF},
                             CodePoints{0xE0020, 0xE007F}, CodePoints{0xE0100, 0xE01EF}};

// Of a character that is well-formed.
char32_t codePoint(std::string_view bytes) {
    const auto lead = static_cast<unsigned char>(bytes.front());
    if (bytes.size() == 1) return lead;
    char32_t value = lead & (0xFFU >> (bytes.size() + 1));
    for (const char c : bytes.substr(1)) value = (value << 6) | (static_cast<unsigned char>(c) & 0x3FU);
    return value;
}

bool joins(std::string_view character) {
    if (character.empty()) return false;
    const char32_t value = codePoint(character);
    return std::ranges::any_of(joining,
                               [value](const CodePoints& row) { return value >= row.first && value <= row.last; });
}

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
        // A line end of two is one character.
        const std::string_view character = typed.starts_with("\r\n") ? typed.substr(0, 2) : utf8Prefix(typed, 1);
        typed.remove_prefix(character.size());
        const std::string_view next = utf8Prefix(typed, 1);
        const bool joined = !isControl(character.front()) && joins(next);
        if (!isAscii(character) || joined || character == ";") continue;
        tag += character;
        ++count;
    }
    return tag;
}

}  // namespace corvane
