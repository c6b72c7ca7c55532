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

// What a reader takes for the first character of a well-formed text: "e\u0301" of "e\u0301cole", a letter with what is
// put on it, and "\r\n". A picture that is joined of several counts as these. Nothing of the empty text.
std::string_view firstSign(std::string_view text);

}  // namespace corvane
