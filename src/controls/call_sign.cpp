#include "controls/call_sign.h"

#include <algorithm>

#include "wire/wire_text.h"

namespace corvane {

std::string upperCase(std::string_view text) {
    std::string upper(text);
    std::ranges::transform(upper, upper.begin(),
                           [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return upper;
}

std::string callSignCommand(std::string_view text) {
    std::string call = upperCase(trimmed(text));
    call.resize(12, ' ');
    return "EX040101" + call + ';';
}

}  // namespace corvane
