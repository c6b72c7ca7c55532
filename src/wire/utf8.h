// UTF-8 texts and their characters. Text on the line is ASCII, but noise can turn it into any bytes.
#pragma once

#include <cstddef>
#include <string_view>

namespace corvane {

// Whether the bytes are well-formed UTF-8: no stray or missing continuation, no overlong form, no surrogate, nothing
// above U+10FFFF. ASCII and the empty text are well-formed.
bool isUtf8(std::string_view bytes);

// The first `count` characters of a well-formed text: utf8Prefix("73 \u00e4", 4) is all of it.
std::string_view utf8Prefix(std::string_view text, std::size_t count);

// The first character of a well-formed text as a reader sees it: "e\u0301" of "e\u0301cole", a letter with its accent.
// "\r\n" is one character; an emoji that is joined from several counts as several. Empty for the empty text.
std::string_view firstSign(std::string_view text);

}  // namespace corvane
