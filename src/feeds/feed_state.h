// The on-line lists as they were fetched last. They live in memory only.
#pragma once

#include "feeds/feed_row.h"

namespace corvane {

struct FeedState {
    FeedList vqPotaArray;
    FeedList vqSotaArray;
    FeedList vqNetLoggerArray;
    FeedList vqNetsArray;
    FeedList vqMWArray;
};

}  // namespace corvane
