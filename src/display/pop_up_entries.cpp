#include "display/pop_up_entries.h"

#include <fmt/core.h>

#include "wire/operating_modes.h"

namespace corvane {

namespace {

// `first` as it stands, then the numbers from `from` to `to` between `before` and `after`.
std::vector<std::string> numbered(std::vector<std::string> first, int from, int to, std::string_view before,
                                  std::string_view after = {}) {
    for (int number = from; number <= to; ++number) first.push_back(fmt::format("{}{}{}", before, number, after));
    return first;
}

std::vector<std::string> withModes(std::vector<std::string> first) {
    for (const OperatingMode& mode : operatingModes) first.emplace_back(mode.name);
    return first;
}

}  // namespace

std::vector<std::string> entryList(std::string_view entries) {
    std::vector<std::string> list;
    while (!entries.empty()) {
        const std::size_t end = entries.find('|');
        list.emplace_back(entries.substr(0, end));
        entries.remove_prefix(end == std::string_view::npos ? entries.size() : end + 1);
    }
    return list;
}

std::vector<std::string> modeEntries() { return withModes({}); }
std::vector<std::string> memoryModeEntries() { return withModes({"\u2013"}); }
std::vector<std::string> noiseReductionEntries() { return numbered({"OFF"}, 1, 15, ""); }
std::vector<std::string> noiseBlankerEntries() { return numbered({"OFF"}, 1, 10, ""); }
std::vector<std::string> scopeColorEntries() { return numbered({}, 1, 11, "Color "); }
std::vector<std::string> powerEntries() { return numbered({}, 5, 100, "", "w"); }

std::vector<std::string> scopeLevelEntries() {
    std::vector<std::string> list;
    for (int halves = -60; halves <= 60; ++halves) list.push_back(fmt::format("{:+05.1f}", halves / 2.0));
    return list;
}

std::vector<std::string> powerOffEntries() {
    std::vector<std::string> list{"OFF"};
    for (int halves = 1; halves <= 24; ++halves) list.push_back(fmt::format("{} h", halves / 2.0));
    return list;
}

}  // namespace corvane
