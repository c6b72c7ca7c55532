#include "memories/memory_state.h"

#include <algorithm>

#include "memories/memory_commands.h"
#include "wire/cat_command.h"

namespace corvane {

std::string memoryPopUpTitle(int row, const MemoryChannel& channel) {
    return "M-" + zeroPadded(row + 1, 2) + ' ' + channel.tag;
}

MemoryReadProgress memoryReadProgress(const MemoryState& memories) {
    MemoryReadProgress progress;
    const bool tags = memories.vqTagRead == "run";
    progress.running = tags || memories.vqMemRead == "run";
    progress.handled = memories.vqMemReadCnt + memories.vqTagReadCnt;
    if (progress.running) {
        const int asked = std::max(1, tags ? memories.vqTagReadCnt : memories.vqMemReadCnt);
        progress.text = std::string("Reading ") + (tags ? "tags" : "frequencies") + ", channel " +
                        std::to_string(asked) + " of " + std::to_string(memoryChannels);
    } else {
        const auto programmed = std::ranges::count_if(memories.vqMemArray, isProgrammed);
        progress.text = "Read: " + std::to_string(programmed) + (programmed == 1 ? " channel" : " channels") +
                        " programmed, " + std::to_string(memoryChannels - programmed) + " empty";
    }
    return progress;
}

bool repliesAreComing(const MemoryState& memories) {
    return !memories.stalled && (memories.vqMemRead == "run" || memories.vqTagRead == "run");
}

}  // namespace corvane
