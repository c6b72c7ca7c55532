// Any body of the POTA spot service.
#include <algorithm>
#include <cstdint>

#include "feeds/feed_cells.h"
#include "feeds/spots.h"
#include "wire/utf8.h"

#define INVARIANT(condition) \
    if (!(condition)) __builtin_trap()

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace corvane;
    const std::string_view body(reinterpret_cast<const char*>(data), size);
    const DecodedFeed spots = decodePotaSpots(body, Instant{});
    INVARIANT(spots.problem.empty() || spots.rows.empty());
    for (const FeedRow& row : spots.rows) {
        INVARIANT(row.fields.size() == 10);
        for (const std::string& field : row.fields) INVARIANT(isUtf8(field));
        for (const char* column : {"frequency", "last", "reference"}) feedCell(Feed::pota, column, row);
    }
    return 0;
}
