// Text on the line is ASCII, and whatever noise makes of it: what may be taken as text at all.
#pragma once

#include <cstddef>
#include <string_view>

namespace corvane {

// Whether the bytes are well-formed UTF-8: no stray or missing continuation, no overlong form, no surrogate, nothing
// above U+10FFFF. ASCII and the empty text are.
bool isUtf8(std::string_view bytes);

// The first `count` characters of a well-formed text: utf8Prefix("73 \u00e4", 4) is all of it.
std::string_view utf8Prefix(std::string_view text, std::size_t count);

}  // namespace corvane
