#include "memories/memory_state.h"

#include <fmt/core.h>

#include <algorithm>

#include "memories/memory_commands.h"

namespace corvane {

std::string memoryPopUpTitle(int row, const MemoryChannel& channel) {
    return fmt::format("M-{:02} {}", row + 1, channel.tag);
}

MemoryReadProgress memoryReadProgress(const MemoryState& memories) {
    MemoryReadProgress progress;
    const bool tags = memories.vqTagRead == "run";
    progress.running = tags || memories.vqMemRead == "run";
    progress.handled = memories.vqMemReadCnt + memories.vqTagReadCnt;
    if (progress.running) {
        const int asked = std::max(1, tags ? memories.vqTagReadCnt : memories.vqMemReadCnt);
        progress.text =
            fmt::format("Reading {}, channel {} of {}", tags ? "tags" : "frequencies", asked, memoryChannels);
    } else {
        const auto programmed = std::ranges::count_if(memories.vqMemArray, isProgrammed);
        progress.text = fmt::format("Read: {} {} programmed, {} empty", programmed,
                                    programmed == 1 ? "channel" : "channels", memoryChannels - programmed);
    }
    return progress;
}

bool repliesAreComing(const MemoryState& memories) {
    return !memories.stalled && (memories.vqMemRead == "run" || memories.vqTagRead == "run");
}

}  // namespace corvane
