#include "wire/utf8.h"

#include <unigbrk.h>
#include <unistr.h>

namespace corvane {

namespace {

const std::uint8_t* octets(std::string_view text) { return reinterpret_cast<const std::uint8_t*>(text.data()); }

// The loop has no early exit, so that the compiler can check many bytes at once.
bool isLongAscii(std::string_view text) {
    unsigned char all = 0;
    for (const char c : text) all |= static_cast<unsigned char>(c);
    return all < 0x80;
}

}  // namespace

// Every response is checked here, and nearly all are ASCII. The library would take four times as long to find that out.
bool isUtf8(std::string_view bytes) { return isLongAscii(bytes) || u8_check(octets(bytes), bytes.size()) == nullptr; }

std::string_view utf8Prefix(std::string_view text, std::size_t count) {
    std::string_view rest = text;
    for (ucs4_t character = 0; count > 0 && !rest.empty(); --count)
        rest.remove_prefix(static_cast<std::size_t>(u8_mbtouc(&character, octets(rest), rest.size())));
    return text.substr(0, text.size() - rest.size());
}

std::string_view firstSign(std::string_view text) {
    const std::uint8_t* begin = octets(text);
    const std::uint8_t* end = u8_grapheme_next(begin, begin + text.size());
    return end ? text.substr(0, static_cast<std::size_t>(end - begin)) : std::string_view();
}

}  // namespace corvane
