#include "share/shared_item.h"

#include "wire/operating_modes.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

// "IF" channel(3) frequency(9) clarifier(5) on for receiving(1) on for transmitting(1) mode(1) kind(1) ...
constexpr std::size_t recordLength = 27;

constexpr int automaticGain = 4;

void takeRecord(std::string_view record, int side, const std::function<void(Item, int)>& take) {
    if (record.size() != recordLength) return;
    const auto hertz = decimal(positions(record, 6, 9));
    const auto clarifier = decimal(positions(record, 15, 5));
    const char mode = record[21];
    if (!hertz || !clarifier || !modeName(mode)) return;
    take(ofSide(Item::frequencyA, side), *hertz);
    take(ofSide(Item::modeA, side), mode);
    take(ofSide(Item::memoryA, side), positions(record, 3, 3) == "000" ? 0 : 1);
    take(ofSide(Item::clarifierA, side), record[19] == '1' ? *clarifier : 0);
    take(ofSide(Item::transmitClarifierA, side), record[20] == '1' ? *clarifier : 0);
}

}  // namespace

std::string_view requestFor(Item item, int activeSide) {
    if (item == Item::frequencyA) return activeSide == 0 ? "FA;" : "FA;VS;";
    if (item == Item::frequencyB) return activeSide == 1 ? "FB;" : "FB;VS;";
    if (index(item) <= index(Item::transmitClarifierB)) {
        const bool sideB = index(item) % 2 == 1;
        if (activeSide == (sideB ? 1 : 0)) return sideB ? "OI;" : "IF;";
        return sideB ? "OI;IF;" : "IF;OI;";
    }
    const auto row = std::ranges::find(reportRows, item, &ReportRow::item);
    return row == reportRows.end() ? std::string_view{} : row->request;
}

void forEachReported(std::string_view response, int activeSide, const std::function<void(Item, int)>& take) {
    if (response.starts_with("IF")) return takeRecord(response, 0, take);
    if (response.starts_with("OI")) return takeRecord(response, 1, take);
    if (response.starts_with("MD0")) {
        if (response.size() == 4 && modeName(response[3])) take(ofSide(Item::modeA, activeSide), response[3]);
        return;
    }
    const auto after = std::ranges::upper_bound(reportRows, response, {}, &ReportRow::name);
    if (after == reportRows.begin()) return;
    const ReportRow& row = *(after - 1);
    if (!response.starts_with(row.name)) return;
    const std::string_view digits = response.substr(row.name.size(), row.digits);
    const auto value = decimal(digits);
    if (digits.size() != row.digits || digits[0] == '-' || digits[0] == '+' || !value) return;
    // 5 and 6 are automatic, too, and say which speed was chosen.
    take(row.item, row.item == Item::agc ? std::min(*value, automaticGain) : *value);
}

}  // namespace corvane
