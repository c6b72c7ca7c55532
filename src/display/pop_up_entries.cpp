#include "display/pop_up_entries.h"

#include <cstdio>

#include "wire/operating_modes.h"

namespace corvane {

namespace {

// `first` as it stands, then the numbers from `from` to `to` between `before` and `after`.
std::vector<std::string> numbered(std::vector<std::string> first, int from, int to, std::string_view before,
                                  std::string_view after = {}) {
    for (int number = from; number <= to; ++number)
        first.push_back(std::string(before).append(std::to_string(number)).append(after));
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
    for (int tenths = -300; tenths <= 300; tenths += 5) {
        const int size = tenths < 0 ? -tenths : tenths;
        char text[8];
        std::snprintf(text, sizeof text, "%c%02d.%d", tenths < 0 ? '-' : '+', size / 10 % 100, size % 10);
        list.emplace_back(text);
    }
    return list;
}

std::vector<std::string> powerOffEntries() {
    std::vector<std::string> list{"OFF"};
    for (int halves = 1; halves <= 24; ++halves)
        list.push_back(std::to_string(halves / 2) + (halves % 2 ? ".5 h" : " h"));
    return list;
}

}  // namespace corvane
