// Values out of text that looks like XML and is read line by line: "<NetName>Noon Net</NetName><Mode>SSB</Mode>".
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "feeds/feed_row.h"

namespace corvane {

// One list of values a tag. A line gives at most one value a tag, its first whole pair, unchanged; of the tag
// "Frequency" it gives keepDigits of that. Lines end with "\n".
std::vector<std::vector<std::string>> scrapeTags(std::string_view text, std::span<const std::string_view> tags);

// The rows that the lists make: the k-th value of each list, as far as every list has one.
FeedList rowsOf(std::vector<std::vector<std::string>> lists);

// The text without everything that is no figure and no point: "14.300 MHz" gives "14.300", "7,185" "7185".
std::string keepDigits(std::string_view text);

}  // namespace corvane
