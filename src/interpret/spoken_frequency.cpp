#include "interpret/spoken_frequency.h"

#include <fmt/core.h>

#include "wire/wire_text.h"

namespace corvane {

std::string spokenFrequency(std::string_view nineDigits) {
    std::string megahertz;
    for (const char digit : std::to_string(decimalOrZero(nineDigits.substr(0, 3)))) {
        if (!megahertz.empty()) megahertz += ' ';
        megahertz += digit;
    }
    std::string_view hertz = nineDigits.substr(6, 3);
    while (hertz.ends_with('0')) hertz.remove_suffix(1);
    return fmt::format("{} dot {}{}{}", megahertz, nineDigits.substr(3, 3), hertz.empty() ? "" : " dot ", hertz);
}

}  // namespace corvane
