#include "wire/utf8.h"

#include <algorithm>

namespace corvane {

namespace {

bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

// Length in bytes of the character that `text` begins with; 0 when it is malformed.
std::size_t characterLength(std::string_view text) {
    const auto first = static_cast<unsigned char>(text[0]);
    if (first < 0x80U) return 1;
    const std::size_t length = first >= 0xC2U && first < 0xE0U   ? 2
                               : (first & 0xF0U) == 0xE0U        ? 3
                               : first >= 0xF0U && first < 0xF5U ? 4
                                                                 : 0;
    if (length == 0 || text.size() < length) return 0;
    if (!std::all_of(text.begin() + 1, text.begin() + static_cast<std::ptrdiff_t>(length), isContinuation)) return 0;
    const auto second = static_cast<unsigned char>(text[1]);
    const bool overlong = (first == 0xE0U && second < 0xA0U) || (first == 0xF0U && second < 0x90U);
    const bool surrogate = first == 0xEDU && second >= 0xA0U;
    const bool tooHigh = first == 0xF4U && second >= 0x90U;
    return overlong || surrogate || tooHigh ? 0 : length;
}

}  // namespace

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t length = characterLength(bytes);
        if (length == 0) return false;
        bytes.remove_prefix(length);
    }
    return true;
}

std::string_view utf8Prefix(std::string_view text, std::size_t count) {
    std::size_t end = 0;
    for (; end < text.size(); ++end)
        if (!isContinuation(text[end]) && count-- == 0) break;
    return text.substr(0, end);
}

}  // namespace corvane
