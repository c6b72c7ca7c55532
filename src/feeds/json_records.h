// A JSON array of records whose fields are known, read exactly: a record that lacks a field, or holds something else in
// it, makes the whole array unreadable.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "feeds/feed_row.h"

namespace corvane {

// One record. Asking for a field that is not as it should be marks the record, and with it the array, as unreadable.
class JsonRecord {
public:
    virtual ~JsonRecord() = default;

    virtual std::string text(std::string_view name) = 0;                         // must be there
    virtual std::optional<std::string> optionalText(std::string_view name) = 0;  // may be absent or null
    virtual std::optional<float> optionalNumber(std::string_view name) = 0;      // may be absent or null
};

// Calls `makeRow` for every record in order; rows that it gives are kept. Bytes that are no JSON array of records give
// no rows and a problem: "unreadable: record 3 has no text \"name\"".
DecodedFeed decodeRecords(std::string_view body, const std::function<std::optional<FeedRow>(JsonRecord&)>& makeRow);

}  // namespace corvane
