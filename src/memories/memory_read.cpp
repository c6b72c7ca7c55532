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
    named.reset();
    outdated_ = 0;  // the chain counts every reply
    MemoryReadStep step;
    step.request = ask({false, 1});
    return step;
}

std::string MemoryRead::ask(const Request& request) {
    underWay_.push_back(request);
    return memoryRequest(request.forTag ? "MT" : "MR", request.channel);
}

// Whether a reply is dropped. The transceiver answers in order, so a reply also settles the requests before its own;
// one that names no channel settles the oldest.
bool MemoryRead::settle(const Request& replied) {
    const auto own = replied.channel == 0 ? underWay_.begin() : std::ranges::find(underWay_, replied);
    if (own == underWay_.end()) return false;
    const auto settled = static_cast<std::size_t>(own - underWay_.begin()) + 1;
    underWay_.erase(underWay_.begin(), own + 1);
    const bool dropped = settled <= outdated_;
    outdated_ -= std::min(outdated_, settled);
    return dropped;
}

MemoryReadStep MemoryRead::take(const MemoryReply& reply) {
    if (settle({false, reply.channel})) return {};
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
        step.request = ask({false, vqMemReadCnt});
    } else {
        vqMemRead = "0";
        vqTagRead = "run";
        step.request = ask({true, 1});
    }
    return step;
}

MemoryReadStep MemoryRead::take(const TagReply& reply) {
    if (settle({true, reply.channel})) return {};
    MemoryReadStep step;
    if (reply.channel != 0) {
        step.row = static_cast<std::size_t>(reply.channel - 1);
        asRead[*step.row].row.tag = reply.tag;
        named.set(*step.row);
        unsaved = true;
    }
    if (vqTagRead != "run") return step;
    stalled = false;
    if (++vqTagReadCnt <= memoryChannels)
        step.request = ask({true, vqTagReadCnt});
    else
        finish();
    step.ended = vqTagRead != "run";
    return step;
}

std::size_t MemoryRead::fill(const MemoryReply& reply) {
    const auto row = static_cast<std::size_t>(reply.channel - 1);
    std::string tag = std::move(asRead[row].row.tag);
    asRead[row] = {rowOf(reply), std::string(reply.rest)};
    asRead[row].row.tag = std::move(tag);
    answered.set(row);
    unsaved = true;
    return row;
}

// A channel without a reply is empty and one without a tag reply has no tag, whatever an earlier read found there.
void MemoryRead::finish() {
    vqTagRead = "0";
    whole = true;
    unsaved = true;
    for (std::size_t row = 0; row < asRead.size(); ++row) {
        if (!answered.test(row)) asRead[row] = {};
        if (answered.test(row) && !named.test(row)) asRead[row].row.tag.clear();
    }
}

void MemoryRead::endEarly() {
    ++number;
    vqMemRead = "0";
    vqTagRead = "0";
    stalled = false;
    rowsMove();
}

void MemoryRead::rowsMove() { outdated_ = underWay_.size(); }

void MemoryRead::forget(unsigned nextSession) {
    asRead = {};
    unsaved = false;
    asReadSession = nextSession;
    underWay_.clear();
    outdated_ = 0;
}

// Both passes ask for channel 1 twice: after k replies, the one for channel k is missing.
std::string MemoryRead::missing() const {
    if (whole || session == 0) return {};
    const auto next = [](int replies) { return replies == 0 ? 1 : std::max(2, replies); };
    if (vqMemReadCnt <= memoryChannels)
        return fmt::format("channels from M-{:02} on, and all names", next(vqMemReadCnt));
    return fmt::format("names from M-{:02} on", next(vqTagReadCnt));
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
