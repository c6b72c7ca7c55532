#include "feeds/spots.h"

#include <algorithm>

#include "feeds/json_records.h"
#include "feeds/row_facts.h"
#include "feeds/spot_time.h"
#include "wire/decimal_number.h"
#include "wire/wire_text.h"

namespace corvane {

namespace {

constexpr int noAge = 99'999'999;  // sorts last
constexpr std::size_t ageOfPotaSpot = 5;
constexpr int lowestSotaMegahertz = 2;
constexpr int highestSotaMegahertz = 69;

struct potaCalls {
    explicit potaCalls(JsonRecord& record)
        : activator(record.text("activator")),
          frequency(record.text("frequency")),
          mode(record.text("mode")),
          comments(record.text("comments")),
          name(record.text("name")),
          spotTime(record.text("spotTime")),
          latitude(record.optionalNumber("latitude")),
          longitude(record.optionalNumber("longitude")),
          locationDesc(record.text("locationDesc")),
          reference(record.text("reference")) {}

    std::string activator;
    std::string frequency;  // kHz
    std::string mode;
    std::string comments;
    std::string name;
    std::string spotTime;
    std::optional<float> latitude;
    std::optional<float> longitude;
    std::string locationDesc;
    std::string reference;
};

struct sotaCalls {
    explicit sotaCalls(JsonRecord& record)
        : timeStamp(record.text("timeStamp")),
          comments(record.optionalText("comments")),
          activatorCallsign(record.text("activatorCallsign")),
          activatorName(record.text("activatorName")),
          frequency(record.text("frequency")),
          mode(record.text("mode")),
          summitCode(record.text("summitCode")),
          summitDetails(record.text("summitDetails")) {}

    std::string timeStamp;
    std::optional<std::string> comments;
    std::string activatorCallsign;
    std::string activatorName;
    std::string frequency;  // MHz
    std::string mode;
    std::string summitCode;
    std::string summitDetails;
};

std::string ageText(std::string_view time, Instant now) {
    const auto spotted = spotTime(time);
    return spotted ? std::to_string(spotAgeMinutes(now, *spotted)) : std::string();
}

// The pieces between the separators, without empty ones.
std::vector<std::string_view> pieces(std::string_view text, char separator) {
    std::vector<std::string_view> found;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        if (end > 0) found.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return found;
}

std::optional<FeedRow> potaRow(const potaCalls& spot, Instant now) {
    if (saysQrt(spot.comments)) return std::nullopt;
    return FeedRow{{spot.activator, spot.frequency, spot.mode, spot.comments, spot.name, ageText(spot.spotTime, now),
                    shortestDecimal(spot.latitude.value_or(0)), shortestDecimal(spot.longitude.value_or(0)),
                    spot.locationDesc, spot.reference}};
}

std::optional<FeedRow> sotaRow(const sotaCalls& spot, Instant now) {
    const float megahertz = decimalNumber<float>(spot.frequency).value_or(0);
    // Compared as a float: an integer could overflow.
    if (!(megahertz >= lowestSotaMegahertz && megahertz < highestSotaMegahertz + 1)) return std::nullopt;
    const auto timePieces = pieces(spot.timeStamp, '.');
    const auto summit = pieces(spot.summitDetails, ',');
    const bool whole = summit.size() < 3;
    const auto part = [&](std::size_t i) { return whole ? std::string(" ") : std::string(trimmed(summit[i])); };
    return FeedRow{{spot.activatorCallsign, spot.activatorName, spot.frequency, spot.mode, spot.comments.value_or(" "),
                    spot.summitCode, whole ? spot.summitDetails : std::string(summit[0]), part(1), part(2),
                    ageText(timePieces.empty() ? std::string_view{} : timePieces[0], now)}};
}

}  // namespace

DecodedFeed decodePotaSpots(std::string_view body, Instant now) {
    DecodedFeed decoded = decodeRecords(body, [now](JsonRecord& record) { return potaRow(potaCalls(record), now); });
    std::ranges::stable_sort(decoded.rows, {},
                             [](const FeedRow& row) { return decimal(row[ageOfPotaSpot]).value_or(noAge); });
    return decoded;
}

DecodedFeed decodeSotaSpots(std::string_view body, Instant now) {
    return decodeRecords(body, [now](JsonRecord& record) { return sotaRow(sotaCalls(record), now); });
}

}  // namespace corvane
