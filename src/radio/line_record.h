// What has gone over the line lately, both ways. Recording costs some 10 ns a command and allocates nothing; nobody
// is told of it, so that a record that nobody reads costs no more. What a port drops as noise, a run of more than 256
// bytes without a ";", never reaches it.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <string_view>
#include <vector>

#include "wire/line_meaning.h"

namespace corvane {

struct RecordedLine {
    static constexpr std::size_t mostKept = 70;  // bytes; the longest command has 56

    std::chrono::system_clock::time_point at;
    std::uint32_t size = 0;  // bytes on the line, of which `text` has the first 70
    LineDirection direction = LineDirection::sent;
    std::uint8_t kept = 0;
    std::array<char, mostKept> bytes{};

    std::string_view text() const { return {bytes.data(), kept}; }
    bool whole() const { return kept == size; }
};

// The last 10,000 lines. They are numbered from 0 on, through all that was forgotten.
class LineRecord {
public:
    static constexpr std::size_t capacity = 10'000;
    using Number = std::uint64_t;

    LineRecord() { ring_.reserve(capacity); }  // takes memory as it fills

    // One write or one chunk of responses, cut behind each ";" into lines: "FA;FB;" is two. Bytes may be any.
    void add(LineDirection direction, std::string_view bytes, std::chrono::system_clock::time_point at);
    void clear() { begin_ = end_; }

    Number begin() const { return begin_; }  // the oldest that is kept
    Number end() const { return end_; }      // the one that comes next
    const RecordedLine& operator[](Number number) const { return ring_[number % capacity]; }

private:
    std::vector<RecordedLine> ring_;
    Number begin_ = 0;
    Number end_ = 0;
};

}  // namespace corvane
