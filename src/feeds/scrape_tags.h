// Extracts values from text that looks like XML, line by line: "<NetName>Noon Net</NetName><Mode>SSB</Mode>".
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "feeds/feed_row.h"

namespace corvane {

// One list of values for each tag. A line gives at most one value for a tag: the text between its first opening tag and
// the closing tag after it. Of a "Frequency" only keepDigits is kept. Lines end with "\n".
std::vector<std::vector<std::string>> scrapeTags(std::string_view text, std::span<const std::string_view> tags);

// Turns the lists into rows: row k has the k-th value of each list. There are as many rows as the shortest list has
// values.
FeedList rowsOf(std::vector<std::vector<std::string>> lists);

// Removes everything but digits and points: "14.300 MHz" gives "14.300", "7,185" gives "7185".
std::string keepDigits(std::string_view text);

}  // namespace corvane
