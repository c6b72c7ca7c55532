// The report that an operator attaches to a question: what the program and the port are, the settings, and the traffic.
#pragma once

#include <string>

#include "line/program_facts.h"
#include "platform/settings_store.h"
#include "radio/line_record.h"

namespace corvane {

struct ReportedPort {
    std::string name;     // "ttyUSB0"; empty: none is chosen
    std::string details;  // "USB serial adapter, /dev/ttyUSB0"
    std::string status;   // "ttyUSB0: connected"
    std::string message;  // what went wrong last; may be empty
};

inline constexpr std::size_t reportedLines = 2000;  // the last ones

// Of the settings only those stand in it that are listed in report.cpp: no identifier, no address, no call sign. The
// user's folder is written as "~".
std::string reportText(const ProgramFacts& facts, const ReportedPort& port, const SettingsStore& settings,
                       const LineRecord& record, std::chrono::system_clock::time_point now);

}  // namespace corvane
