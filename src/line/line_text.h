// One line of the traffic as text.
#pragma once

#include <string>

#include "radio/line_record.h"

namespace corvane {

// The columns of the window.
struct LineText {
    std::string time;       // UTC, to the millisecond: "14:03:12.123"
    std::string direction;  // "sent" or "received"
    std::string bytes;      // "FA014250000;"; what is no printable ASCII as "\x0A"
    std::string meaning;    // "VFO A is 14.250.000 MHz"

    bool operator==(const LineText&) const = default;
};
LineText lineText(const RecordedLine& line);

// For a file, with its line end: "2026-11-23T14:03:12.123Z  received  FA014250000;  VFO A is 14.250.000 MHz".
std::string fileLine(const RecordedLine& line);

// "2026-11-23T14:03:12.123Z"
std::string timeStamp(std::chrono::system_clock::time_point at);

}  // namespace corvane
