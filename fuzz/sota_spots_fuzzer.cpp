// A body of the SOTA spot service, whatever it is.
#include "feeds/feed_cells.h"
#include "feeds/hertz.h"
#include "feeds/spots.h"
#include "fuzz/fuzz_target.h"
#include "wire/utf8.h"

namespace corvane {

void fuzz(std::string_view input) {
    const DecodedFeed spots = decodeSotaSpots(input, Instant{});
    INVARIANT(spots.problem.empty() || spots.rows.empty());
    for (const FeedRow& row : spots.rows) {
        INVARIANT(row.fields.size() == 10);
        for (const std::string& field : row.fields) INVARIANT(isUtf8(field));
        const auto frequency = hertz(row[2], 1e6F);
        INVARIANT(frequency && *frequency >= 2'000'000 && *frequency < 70'000'001);
        feedCell(Feed::sota, "frequency2", row);
    }
}

}  // namespace corvane
