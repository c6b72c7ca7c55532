// One entry of an on-line list.
#pragma once

#include <string>
#include <vector>

namespace corvane {

// Texts in a fixed order, numbers and times too; each decoder says what stands at which position, counted from 0.
struct FeedRow {
    std::vector<std::string> fields;

    const std::string& operator[](std::size_t position) const { return fields[position]; }
    bool operator==(const FeedRow&) const = default;
};

using FeedList = std::vector<FeedRow>;

inline constexpr std::size_t longestSpokenName = 200;  // characters

// The row with this index, or nullptr when the list has been refreshed since, or the row has fewer fields.
inline const FeedRow* rowAt(const FeedList& list, int index, std::size_t fields) {
    const auto row = static_cast<std::size_t>(index);
    return row < list.size() && list[row].fields.size() >= fields ? &list[row] : nullptr;
}

// What is kept of a list, from its top. Services have some hundred rows; a table can be searched through so many while
// the operator types.
inline constexpr std::size_t mostRows = 10'000;

// What a decoder makes of a body: the rows, or none and why not, in a few words for the operator.
struct DecodedFeed {
    FeedList rows;
    std::string problem;

    bool operator==(const DecodedFeed&) const = default;
};

}  // namespace corvane
