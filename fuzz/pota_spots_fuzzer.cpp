// Any body of the POTA spot service.
#include <algorithm>

#include "feeds/feed_cells.h"
#include "feeds/spots.h"
#include "fuzz/fuzz_target.h"
#include "wire/utf8.h"

namespace corvane {

void fuzz(std::string_view input) {
    const DecodedFeed spots = decodePotaSpots(input, Instant{});
    INVARIANT(spots.problem.empty() || spots.rows.empty());
    for (const FeedRow& row : spots.rows) {
        INVARIANT(row.fields.size() == 10);
        for (const std::string& field : row.fields) INVARIANT(isUtf8(field));
        for (const char* column : {"frequency", "last", "reference"}) feedCell(Feed::pota, column, row);
    }
}

}  // namespace corvane
