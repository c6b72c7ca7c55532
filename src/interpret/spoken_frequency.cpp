#include "interpret/spoken_frequency.h"

#include "wire/wire_text.h"

namespace corvane {

std::string spokenFrequency(std::string_view nineDigits) {
    std::string spoken;
    for (const char digit : std::to_string(decimalOrZero(nineDigits.substr(0, 3)))) {
        if (!spoken.empty()) spoken += ' ';
        spoken += digit;
    }
    // Appended in place: a turning knob reports a hundred frequencies a second, and fmt::format would take a third
    // longer.
    spoken.append(" dot ").append(nineDigits.substr(3, 3));
    std::string_view hertz = nineDigits.substr(6, 3);
    while (hertz.ends_with('0')) hertz.remove_suffix(1);
    if (!hertz.empty()) spoken.append(" dot ").append(hertz);
    return spoken;
}

}  // namespace corvane
