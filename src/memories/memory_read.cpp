#include "memories/memory_read.h"

#include <fmt/core.h>

#include <algorithm>

namespace corvane {

MemoryReadStep MemoryRead::begin(unsigned inSession) {
    vqMemRead = "run";
    vqTagRead = "0";
    vqMemReadCnt = 0;
    vqTagReadCnt = 0;
    ++number;
    session = inSession;
    whole = false;
    stalled = false;
    answered.reset();
    MemoryReadStep step;
    step.request = memoryRequest("MR", 1);
    return step;
}

MemoryReadStep MemoryRead::take(const MemoryReply& reply) {
    MemoryReadStep step;
    const bool describesRow = reply.channel != 0;
    if (vqMemRead != "run") {
        // After a read was restarted, or an error response to another command was counted, one reply more is on its
        // way: the last channel then comes after the tags have begun. It must fill its row, or a write would erase it.
        const bool late =
            describesRow && vqTagRead == "run" && !answered.test(static_cast<std::size_t>(reply.channel - 1));
        if (late)
            step.row = fill(reply);
        else
            step.inUse = true;
        return step;
    }
    if (describesRow) step.row = fill(reply);
    stalled = false;
    if (++vqMemReadCnt <= memoryChannels) {
        step.request = memoryRequest("MR", vqMemReadCnt);
    } else {
        vqMemRead = "0";
        vqTagRead = "run";
        step.request = memoryRequest("MT", 1);
    }
    return step;
}

MemoryReadStep MemoryRead::take(const TagReply& reply) {
    MemoryReadStep step;
    if (reply.channel != 0) {
        step.row = static_cast<std::size_t>(reply.channel - 1);
        asRead[*step.row].row.tag = reply.tag;
        unsaved = true;
    }
    if (vqTagRead != "run") return step;
    stalled = false;
    if (++vqTagReadCnt <= memoryChannels)
        step.request = memoryRequest("MT", vqTagReadCnt);
    else
        finish();
    step.ended = vqTagRead != "run";
    return step;
}

std::size_t MemoryRead::fill(const MemoryReply& reply) {
    const auto row = static_cast<std::size_t>(reply.channel - 1);
    asRead[row] = {rowOf(reply), std::string(reply.rest)};
    answered.set(row);
    unsaved = true;
    return row;
}

// A channel without a reply is empty, whatever an earlier read found there.
void MemoryRead::finish() {
    vqTagRead = "0";
    whole = true;
    unsaved = true;
    for (std::size_t row = 0; row < asRead.size(); ++row)
        if (!answered.test(row)) asRead[row] = {};
}

void MemoryRead::endEarly() {
    ++number;
    vqMemRead = "0";
    vqTagRead = "0";
    stalled = false;
}

MemoryReadProgress MemoryRead::progress(const MemoryTable& table) const {
    MemoryReadProgress progress{running(), handled(), {}};
    if (progress.running) {
        const bool tags = vqTagRead == "run";
        const int asked = std::max(1, tags ? vqTagReadCnt : vqMemReadCnt);
        progress.text =
            fmt::format("Reading {}, channel {} of {}", tags ? "tags" : "frequencies", asked, memoryChannels);
    } else {
        const auto programmed = std::ranges::count_if(table, isProgrammed);
        progress.text = fmt::format("Read: {} {} programmed, {} empty", programmed,
                                    programmed == 1 ? "channel" : "channels", memoryChannels - programmed);
    }
    return progress;
}

}  // namespace corvane
