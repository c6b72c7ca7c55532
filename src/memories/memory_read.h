// The read of the memory channels, as a value: a chain of requests and replies, first for frequencies and modes, then
// for tags.
#pragma once

#include <bitset>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "memories/memory_channel.h"
#include "memories/memory_commands.h"

namespace corvane {

// What to do after a reply.
struct MemoryReadStep {
    std::optional<std::size_t> row;  // the row of the table that the reply fills
    std::string request;             // what is asked next, e.g. "MR007;"; empty: nothing
    bool ended = false;              // it was the last reply of a whole read
    bool inUse = false;              // no read was waiting for it: it describes the channel in use

    bool operator==(const MemoryReadStep&) const = default;
};

struct MemoryReadProgress {
    bool running = false;
    int handled = 0;   // replies; a whole read has 200, as both passes ask for channel 1 twice
    std::string text;  // "Reading frequencies, channel 37 of 99"
};

struct MemoryRead {
    std::string vqMemRead = "0";  // "run" while frequencies and modes are read
    std::string vqTagRead = "0";  // "run" while tags are read
    int vqMemReadCnt = 0;         // replies handled in the present read
    int vqTagReadCnt = 0;
    unsigned number =
        0;  // grows with every read begun or ended early, so that the timer of an earlier one does nothing
    unsigned session = 0;                  // the session of the link in which the last read began
    bool whole = false;                    // whether the last read was completed
    bool stalled = false;                  // whether the present read waits for an overdue reply
    std::bitset<memoryChannels> answered;  // the rows that the present read has filled
    std::bitset<memoryChannels> named;     // the rows whose tag has come since it began
    ChannelsAsRead asRead;       // what the transceiver is known to hold; a re-read keeps it until replies come
    unsigned asReadSession = 0;  // the session in which it was reported
    bool unsaved = false;        // whether `asRead` has changed since it was last saved

    MemoryReadStep begin(unsigned inSession);
    MemoryReadStep take(const MemoryReply& reply);
    MemoryReadStep take(const TagReply& reply);
    void endEarly();                    // later replies are not stored
    void rowsMove();                    // nor are the replies that are still to come: each names a channel, not a row
    void forget(unsigned nextSession);  // what was read, and the replies that are still to come

    bool running() const { return vqMemRead == "run" || vqTagRead == "run"; }
    bool repliesAreComing() const { return running() && !stalled; }
    int handled() const { return vqMemReadCnt + vqTagReadCnt; }
    bool wholeIsUnsaved() const { return whole && unsaved && session == asReadSession; }
    MemoryReadProgress progress(const MemoryTable& table) const;
    // What a read that was not completed leaves out: "channels from M-37 on, and all names". Empty if nothing is known
    // to be missing.
    std::string missing() const;

private:
    struct Request {
        bool forTag;
        int channel;

        bool operator==(const Request&) const = default;
    };
    std::string ask(const Request& request);
    bool settle(const Request& replied);
    std::size_t fill(const MemoryReply& reply);
    void finish();

    std::vector<Request> underWay_;  // requests without a reply, in the order in which they were sent
    std::size_t outdated_ = 0;       // of these, the first ones whose replies are dropped
};

}  // namespace corvane
