// What stands on the line, in words.
#pragma once

#include <string>
#include <string_view>

namespace corvane {

enum class LineDirection : unsigned char { sent, received };

// What a command or a response, with its ";", means: "FA014250000;" received is "VFO A is 14.250.000 MHz", "RM1;" sent
// is "asks for the S-meter", "TX1;" is "TX on". What no row of linePhrases explains is "unknown", a known name with
// something else behind it "not readable", and what has no ";" is "not ended".
std::string lineMeaning(std::string_view text, LineDirection direction);

// The bytes as they can be shown on one line: what is no printable ASCII becomes "\x0A".
std::string printable(std::string_view bytes);

}  // namespace corvane
