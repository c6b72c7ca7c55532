// What the tables of the on-line lists show in a cell. The columns are those of display/table_columns.h.
#pragma once

#include <string>
#include <string_view>

#include "feeds/feed_row.h"

namespace corvane {

enum class FeedTable { pota, sota, netLogger, nets, mediumWave };

// The text of a column by its identifier; a row that is too short shows nothing.
std::string feedCell(FeedTable table, std::string_view column, const FeedRow& row);

}  // namespace corvane
