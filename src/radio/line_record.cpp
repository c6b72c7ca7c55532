#include "radio/line_record.h"

#include <algorithm>
#include <cstring>

namespace corvane {

void LineRecord::add(LineDirection direction, std::string_view bytes, std::chrono::system_clock::time_point at) {
    while (!bytes.empty()) {
        const std::string_view piece = bytes.substr(0, std::min(bytes.find(';'), bytes.size() - 1) + 1);
        bytes.remove_prefix(piece.size());
        if (ring_.size() < capacity) ring_.emplace_back();
        RecordedLine& line = ring_[end_ % capacity];
        line.at = at;
        line.size = static_cast<std::uint32_t>(piece.size());
        line.direction = direction;
        line.kept = static_cast<std::uint8_t>(std::min(piece.size(), RecordedLine::mostKept));
        std::memcpy(line.bytes.data(), piece.data(), line.kept);
        if (++end_ - begin_ > capacity) begin_ = end_ - capacity;
    }
}

}  // namespace corvane
