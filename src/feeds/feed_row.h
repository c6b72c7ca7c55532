// One entry of an on-line list.
#pragma once

#include <string>
#include <vector>

namespace corvane {

// Texts in a fixed order; numbers and times are texts, too. Each decoder says what stands at which position, counted
// from 0.
struct FeedRow {
    std::vector<std::string> fields;

    const std::string& operator[](std::size_t position) const { return fields[position]; }
    bool operator==(const FeedRow&) const = default;
};

using FeedList = std::vector<FeedRow>;

inline constexpr std::size_t longestSpokenName = 200;  // characters

// The row with this index, or nullptr if a refreshed list has become too short, or the row has fewer fields.
inline const FeedRow* rowAt(const FeedList& list, int index, std::size_t fields) {
    const auto row = static_cast<std::size_t>(index);
    return row < list.size() && list[row].fields.size() >= fields ? &list[row] : nullptr;
}

// The most rows that are kept of a list, from its top. Services send a few hundred; this many can still be searched
// while the operator types.
inline constexpr std::size_t mostRows = 10'000;

// The result of decoding a body: the rows, or none and the reason in a few words for the operator.
struct DecodedFeed {
    FeedList rows;
    std::string problem;

    bool operator==(const DecodedFeed&) const = default;
};

}  // namespace corvane
