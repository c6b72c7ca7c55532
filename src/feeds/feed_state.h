// The on-line lists as last fetched. They are kept in memory only.
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
