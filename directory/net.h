// The entries of the directory.
#pragma once

#include <string>

namespace corvane::directory {

// A net that meets at a fixed time on certain days.
struct Net {
    std::string id;         // digits, lower-case letters and "-": "noon-net"; never changes
    std::string name;       // "Noon Net"
    std::string frequency;  // MHz: "3.940"
    std::string utc;        // "17:00"
    std::string days;       // days in UTC, see scheduleOf: "daily", "Mon-Fri"
    std::string mode;       // "LSB"
    std::string url;        // its web page, or empty

    bool operator==(const Net&) const = default;
};

// A medium-wave broadcast station.
struct Station {
    std::string callSign;   // "WSM"
    std::string frequency;  // kHz: "650"
    std::string city;       // "Nashville"
    std::string power;      // kW: "50"
    std::string url;        // its web page, or empty

    bool operator==(const Station&) const = default;
};

}  // namespace corvane::directory
