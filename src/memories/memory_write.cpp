#include "memories/memory_write.h"

#include <fmt/core.h>

#include <algorithm>

namespace corvane {

void MemoryWrite::addRow(std::size_t bytes) {
    all_ += bytes;
    rowEnds_.push_back(all_);
}

int MemoryWrite::rowsSent(std::size_t waiting) const {
    const std::size_t sent = all_ - std::min(waiting, all_);
    return static_cast<int>(std::ranges::upper_bound(rowEnds_, sent) - rowEnds_.begin());
}

std::string MemoryWrite::progressText(std::size_t waiting) const {
    const int rows = static_cast<int>(rowEnds_.size());
    return fmt::format("Writing channel {} of {}", std::min(rowsSent(waiting) + 1, rows), rows);
}

std::string MemoryWrite::endedEarlyText(std::size_t neverSent) const {
    return fmt::format(
        "Writing ended early: {} of {} channels were sent. Export them before you connect, which reads the channels "
        "anew.",
        rowsSent(neverSent), rowEnds_.size());
}

}  // namespace corvane
