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

// The limit of every field but an address; services send less. Nothing that shows, speaks or sends a field has another.
inline constexpr std::size_t longestField = 200;  // characters
inline constexpr std::size_t noAddress = std::size_t(-1);

// The row as the lists keep it: fields cut to `longestField`; the one at `address` emptied if it is longer than
// longestAddress, as the rest of an address leads elsewhere. The fields must be well-formed UTF-8.
FeedRow withinLimits(FeedRow row, std::size_t address = noAddress);

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
