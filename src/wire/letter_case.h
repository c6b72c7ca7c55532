// Upper case for commands, call signs and modes, which are ASCII; every other byte stays unchanged.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace corvane {

constexpr char upperCase(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

// "n0call/p" gives "N0CALL/P".
constexpr std::string upperCase(std::string_view text) {
    std::string upper(text);
    for (char& c : upper) c = upperCase(c);
    return upper;
}

// Whether two texts are equal when case is ignored: "Cw-u" and "CW-U" are.
constexpr bool sameWord(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right, [](char a, char b) { return upperCase(a) == upperCase(b); });
}

}  // namespace corvane
