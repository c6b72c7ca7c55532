// The on-line lists as last fetched. They are kept in memory only.
#pragma once

#include <array>
#include <chrono>

#include "display/feed.h"
#include "feeds/feed_row.h"

namespace corvane {

struct FeedState {
    FeedList vqPotaArray;
    FeedList vqSotaArray;
    FeedList vqNetLoggerArray;
    FeedList vqNetsArray;
    FeedList vqMWArray;

    // When the rows came, by Feed. The ages of spots, as they are in the rows, are those of that moment.
    std::array<std::chrono::system_clock::time_point, 5> cameAt{};
    long long minutesSince(Feed list, std::chrono::system_clock::time_point now) const {
        return std::chrono::floor<std::chrono::minutes>(now - cameAt[static_cast<std::size_t>(list)]).count();
    }
};

}  // namespace corvane
