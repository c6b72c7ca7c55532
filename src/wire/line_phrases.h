// What the commands of the transceiver are about: one row each, for `lineMeaning`. A command without a row is unknown.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace corvane {

struct LinePhrase {
    // What stands behind the name when it is no question.
    enum class Form : unsigned char {
        number,      // digits, `detail` is the unit: "sets the AF gain to 128"
        signedText,  // as it stands, with the unit: "the scope level is +10.5 dB"
        choice,      // the number of an entry of `detail`: "sets the attenuator to 6 dB"
        state,       // the same, but an entry is the whole phrase: "TX on"
        first,       // like choice, by the first character; the others are zeros
        frequency,   // hertz
        mode,        // a code of operatingModes
        record,      // channel, frequency, clarifier, mode ... of "IF"
        text,        // as it stands, in quotation marks
        tag,         // the same after one character
        code,        // a code without a name here: "sets the function knob to code E"
        meter,       // three digits, then three zeros
        action,      // nothing: `detail` is the whole phrase; it cannot be asked for
    };

    std::string_view name;
    std::string_view noun;
    Form form;
    std::size_t width;             // of what stands behind name and index; 0: any
    std::string_view detail = {};  // entries are parted by "|"
    std::size_t index = 0;         // characters behind the name that say which one: "KM3" is "CW memory 3"
};

// clang-format off
inline constexpr std::array linePhrases = [] {
    using enum LinePhrase::Form;
    return std::array{
        LinePhrase{"?", "", action, 0, "not understood"},
        LinePhrase{"AC", "the antenna tuner", state, 3, "antenna tuner off|antenna tuner on|antenna tuner tunes"},
        LinePhrase{"AG0", "the AF gain", number, 3},
        LinePhrase{"AI", "the reports of changes", state, 1, "reports of changes off|reports of changes on"},
        LinePhrase{"BC0", "the automatic notch", state, 1, "automatic notch off|automatic notch on"},
        LinePhrase{"BI", "break-in", state, 1, "break-in off|break-in on"},
        LinePhrase{"BP00", "the notch", state, 3, "notch off|notch on"},
        LinePhrase{"BS", "", state, 2, "goes to 1.8 MHz|goes to 3.5 MHz|goes to 5 MHz|goes to 7 MHz|goes to 10 MHz|goes to 14 MHz|goes to 18 MHz|goes to 21 MHz|goes to 24.9 MHz|goes to 28 MHz|goes to 50 MHz|goes to general coverage"},
        LinePhrase{"CO00", "the contour", state, 4, "contour off|contour on"},
        LinePhrase{"EM0", "RTTY memory", text, 0, "", 1},
        LinePhrase{"EM1", "PSK memory", text, 0, "", 1},
        LinePhrase{"EN01", "", action, 0, "plays RTTY memory 1"},
        LinePhrase{"EN02", "", action, 0, "plays RTTY memory 2"},
        LinePhrase{"EN03", "", action, 0, "plays RTTY memory 3"},
        LinePhrase{"EN04", "", action, 0, "plays RTTY memory 4"},
        LinePhrase{"EN05", "", action, 0, "plays RTTY memory 5"},
        LinePhrase{"EN11", "", action, 0, "plays PSK memory 1"},
        LinePhrase{"EN12", "", action, 0, "plays PSK memory 2"},
        LinePhrase{"EN13", "", action, 0, "plays PSK memory 3"},
        LinePhrase{"EN14", "", action, 0, "plays PSK memory 4"},
        LinePhrase{"EN15", "", action, 0, "plays PSK memory 5"},
        LinePhrase{"EX", "menu item", text, 0, "", 6},
        LinePhrase{"FA", "VFO A", frequency, 9},
        LinePhrase{"FB", "VFO B", frequency, 9},
        LinePhrase{"FD", "the tuning rate", code, 0},
        LinePhrase{"GT0", "the AGC", choice, 1, "off|fast|mid|slow|automatic|automatic|automatic"},
        LinePhrase{"ID", "the identification", code, 4},
        LinePhrase{"IF", "side A", record, 25},
        LinePhrase{"KM", "CW memory", text, 0, "", 1},
        LinePhrase{"KY6", "", action, 0, "plays CW memory 1"},
        LinePhrase{"KY7", "", action, 0, "plays CW memory 2"},
        LinePhrase{"KY8", "", action, 0, "plays CW memory 3"},
        LinePhrase{"KY9", "", action, 0, "plays CW memory 4"},
        LinePhrase{"KYA", "", action, 0, "plays CW memory 5"},
        LinePhrase{"MA", "", action, 0, "copies the memory channel to the VFO"},
        LinePhrase{"MC", "the memory channel", number, 3},
        LinePhrase{"MD0", "the mode", mode, 1},
        LinePhrase{"MR", "memory channel", record, 22, "", 3},
        LinePhrase{"MS", "the transmit meter", code, 2},
        LinePhrase{"MT", "the tag of memory channel", tag, 0, "", 3},
        LinePhrase{"MW", "memory channel", record, 22, "", 3},
        LinePhrase{"NB0", "the noise blanker", state, 1, "noise blanker off|noise blanker on"},
        LinePhrase{"NL0", "the level of the noise blanker", number, 3},
        LinePhrase{"NR0", "the noise reduction", state, 1, "noise reduction off|noise reduction on"},
        LinePhrase{"OI", "side B", record, 25},
        LinePhrase{"PA0", "the pre-amplifier", choice, 1, "IPO|AMP 1|AMP 2"},
        LinePhrase{"PC", "the power", number, 3, "W"},
        LinePhrase{"PS", "the power switch", state, 1, "switched off|switched on"},
        LinePhrase{"QI", "", action, 0, "stores a quick memory"},
        LinePhrase{"QR", "", action, 0, "recalls a quick memory"},
        LinePhrase{"RA0", "the attenuator", choice, 1, "off|6 dB|12 dB|18 dB"},
        LinePhrase{"RF0", "the roofing filter", code, 1},
        LinePhrase{"RG0", "the RF gain", number, 3},
        LinePhrase{"RL0", "the level of the noise reduction", number, 2},
        LinePhrase{"RM1", "the S-meter", meter, 6},
        LinePhrase{"SF0", "the multi-purpose knob", code, 1},
        LinePhrase{"SF1", "the function knob", code, 1},
        LinePhrase{"SS00", "the scope speed", first, 5, "slow 1|slow 2|fast 1|fast 2|fast 3|stop"},
        LinePhrase{"SS01", "the scope peak", first, 5, "level 1|level 2|level 3|level 4|level 5"},
        LinePhrase{"SS02", "the scope marker", code, 5},
        LinePhrase{"SS03", "the scope color", code, 5},
        LinePhrase{"SS04", "the scope level", signedText, 5, "dB"},
        LinePhrase{"SS05", "the scope span", first, 5, "1 kHz|2 kHz|5 kHz|10 kHz|20 kHz|50 kHz|100 kHz|200 kHz|500 kHz|1 MHz"},
        LinePhrase{"SS06", "the scope display", code, 5},
        LinePhrase{"SS08", "the scope hold", first, 5, "off|on"},
        LinePhrase{"ST", "split", state, 1, "split off|split on"},
        LinePhrase{"SV", "", action, 0, "swaps the VFOs"},
        LinePhrase{"TX", "the state of the transmitter", state, 1, "TX off|TX on|TX on, by the microphone, the key or a text memory"},
        LinePhrase{"VM", "", action, 0, "changes between VFO and memory"},
        LinePhrase{"VS", "the active VFO", choice, 1, "A|B"},
        LinePhrase{"ZI", "", action, 0, "zeroes in on a CW signal"},
        LinePhrase{"ZI0", "", action, 0, "zeroes in on a CW signal"},
    };
}();
// clang-format on
static_assert(std::ranges::is_sorted(linePhrases, {}, &LinePhrase::name), "found by binary search");

}  // namespace corvane
