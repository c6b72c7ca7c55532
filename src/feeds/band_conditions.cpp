#include "feeds/band_conditions.h"

#include <algorithm>

#include "wire/utf8.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr std::size_t headingLine = 4;
constexpr std::size_t solarFluxLine = 5;
constexpr std::size_t firstBandLine = 20;
constexpr std::size_t magicBandLine = 33;
constexpr std::size_t signalNoiseLine = 37;
constexpr std::size_t longestValue = 40;  // characters; the values of the service are shorter

std::string valueOf(std::string_view line) {
    const std::size_t tagEnd = line.find('>');
    if (tagEnd == std::string_view::npos) return {};
    line.remove_prefix(tagEnd + 1);
    return std::string(utf8Prefix(line.substr(0, line.find_first_of("<>")), longestValue));
}

std::string* slot(BandConditions& conditions, std::size_t line) {
    if (line >= firstBandLine && line < firstBandLine + conditions.bands.size())
        return &conditions.bands[line - firstBandLine];
    switch (line) {
        case headingLine:
            return &conditions.heading;
        case solarFluxLine:
            return &conditions.solarFlux;
        case magicBandLine:
            return &conditions.magicBand;
        case signalNoiseLine:
            return &conditions.signalNoise;
        default:
            return nullptr;
    }
}

}  // namespace

BandConditions decodeBandConditions(std::string_view body) {
    BandConditions conditions;
    if (!isUtf8(body)) return conditions;
    const std::string text = without(body, "\t");
    std::string_view rest = text;
    for (std::size_t line = 0; !rest.empty() && line <= signalNoiseLine; ++line) {
        const std::size_t end = rest.find("\r\n");
        if (std::string* value = slot(conditions, line)) *value = valueOf(rest.substr(0, end));
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 2);
    }
    return conditions;
}

}  // namespace corvane
