// What the rows of the lists have in common: where a station is, how it is heard, who it is.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "display/feed.h"
#include "feeds/feed_row.h"

namespace corvane {

struct RowFacts {
    long long hertz = 0;         // what its Tune key tunes to
    std::string name = {};       // the call, net or station
    std::string reference = {};  // of the park or summit: "US-1234"
    std::string mode = {};       // as its Tune key sets it where that is fixed, else as the list has it: "SSB"
    std::string comment = {};
    std::string place = {};                 // the name of the park or summit
    std::optional<long long> minutes = {};  // the age of a spot when its row came
};

// Nothing for a row that cannot be tuned to.
std::optional<RowFacts> rowFacts(Feed list, const FeedRow& row);

// What stands there without white space around it; empty for a field that the row does not have.
std::string fieldOf(const FeedRow& row, std::size_t position);

// Whether a comment says that the station has closed: "QRT tnx all".
bool saysQrt(std::string_view comment);
// Of a row: only summits' comments can, as parks that say so are left out.
bool saysQrt(Feed list, const FeedRow& row);

// "14.285 MHz"; below 1.8 MHz "640 kHz".
std::string frequencyText(long long hertz);

}  // namespace corvane
