// Any body of the SOTA spot service.
#include <cstdint>

#include "feeds/feed_cells.h"
#include "feeds/hertz.h"
#include "feeds/spots.h"
#include "wire/utf8.h"

#define INVARIANT(condition) \
    if (!(condition)) __builtin_trap()

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace corvane;
    const std::string_view body(reinterpret_cast<const char*>(data), size);
    const DecodedFeed spots = decodeSotaSpots(body, Instant{});
    INVARIANT(spots.problem.empty() || spots.rows.empty());
    for (const FeedRow& row : spots.rows) {
        INVARIANT(row.fields.size() == 10);
        for (const std::string& field : row.fields) INVARIANT(isUtf8(field));
        const auto frequency = hertz(row[2], 1e6F);
        INVARIANT(frequency && *frequency >= 2'000'000 && *frequency < 70'000'001);
        feedCell(Feed::sota, "frequency2", row);
    }
    return 0;
}
