#include "line/report.h"

#include <fmt/core.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "line/line_text.h"
#include "wire/line_meaning.h"

namespace corvane {

namespace {

// Nothing here may tell who the operator is. A setting without a row stays out.
constexpr std::array<std::string_view, 17> reportedSettings{
    "voice",        "sounds",    "ipo",         "bandmap",      "share",       "shareTransmit",
    "shareStore",   "sharePort", "virtualPort", "defaultPort",  "defaultBaud", "operatorClass",
    "onAirTimeOut", "theme",     "reopen",      "refreshEvery", "chips"};

std::string replaced(std::string text, std::string_view what, std::string_view by) {
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
    return text;
}

}  // namespace

std::string reportText(const ProgramFacts& facts, const ReportedPort& port, const SettingsStore& settings,
                       const LineRecord& record, std::chrono::system_clock::time_point now) {
    std::string text = fmt::format("Corvane report of {}\n\n", timeStamp(now));
    const auto row = [&text](std::string_view name, std::string_view value) {
        if (!value.empty()) text += fmt::format("{}: {}\n", name, value);
    };
    row("Program", facts.program);
    row("Toolkit", facts.toolkit);
    row("System", facts.system);
    row("Port", port.name.empty() ? "none chosen" : port.name);
    row("Device", port.details);
    row("Link", port.status);
    row("Message", port.message);
    text += "\nSettings\n";
    for (const std::string_view key : reportedSettings)
        if (const auto value = settings.text(key)) row(key, *value);
    const auto kept = record.end() - record.begin();
    const auto first = std::max(record.begin(), record.end() - std::min<LineRecord::Number>(kept, reportedLines));
    text += fmt::format("\nTraffic: the last {} of {} lines\n", record.end() - first, kept);
    for (auto number = first; number < record.end(); ++number) text += fileLine(record[number]);
    return facts.home.size() > 1 ? replaced(std::move(text), facts.home, "~") : text;
}

}  // namespace corvane
