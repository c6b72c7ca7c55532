// Strict decoding of a JSON array of records with known fields: one missing field, or one of another type, makes the
// whole array unreadable.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "feeds/feed_row.h"

namespace corvane {

// One record. Asking for a field that is missing or has another type makes the record, and with it the array,
// unreadable.
class JsonRecord {
public:
    virtual ~JsonRecord() = default;

    virtual std::string text(std::string_view name) = 0;                         // must be there
    virtual std::optional<std::string> optionalText(std::string_view name) = 0;  // may be absent or null
    virtual std::optional<float> optionalNumber(std::string_view name) = 0;      // may be absent or null
};

// Calls `makeRow` for every record in order; keeps the rows that it returns, their fields cut to `longestField`. Bytes
// that are not a JSON array of records give no rows and a problem: "unreadable: record 3 has no text \"name\"".
//
// Before, `makeRow` is called for a record without any field, and its row is dropped: the fields that it asks for then
// are the only ones that are kept of each record. So it must ask for all of them every time.
DecodedFeed decodeRecords(std::string_view body, const std::function<std::optional<FeedRow>(JsonRecord&)>& makeRow);

}  // namespace corvane
