// The answer to one request, and its text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "share/rigctl_request.h"

namespace corvane {

enum class RigctlError {
    none = 0,
    invalid = 1,
    notImplemented = 4,
    timeOut = 5,
    inputOutput = 6,
    rejected = 9,
    notAvailable = 11
};

struct RigctlAnswer {
    struct Line {
        std::string_view key;  // of the extended form: "Frequency"; empty for a bare value
        std::string value;
    };

    std::vector<Line> lines;
    RigctlError error = RigctlError::none;
    bool bare = false;    // the lines alone, also in the extended form
    bool status = false;  // "RPRT 0" after the lines of the plain form, too: a command that sets
    bool closes = false;  // the connection ends

    void add(std::string_view key, std::string value) { lines.push_back({key, std::move(value)}); }
    void add(std::string_view key, long long value) { add(key, std::to_string(value)); }

    // Appends "14074000\n", or "get_freq:\nFrequency: 14074000\nRPRT 0\n" where the extended form is asked for.
    void appendTo(std::string& text, const RigctlRequest& request) const;
};

}  // namespace corvane
