#include "memories/memory_state.h"

#include "radio/cat_command.h"

namespace corvane {

std::string memoryPopUpTitle(int row, const MemoryChannel& channel) {
    return "M-" + zeroPadded(row + 1, 2) + ' ' + channel.tag;
}

}  // namespace corvane
