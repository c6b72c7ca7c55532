// What the directory lists.
#pragma once

#include <string>

namespace corvane::directory {

// A net on the air at the same time of its days.
struct Net {
    std::string id;         // figures, small letters and "-": "noon-net"; stays when all else changes
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
