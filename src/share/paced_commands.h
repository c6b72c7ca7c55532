// Settings on their way to the line: each kind at most once in 50 ms, always the last value, in the order given.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "share/shared_values.h"

namespace corvane {

class PacedCommands {
public:
    using Send = std::function<void(Item item, const std::string& command)>;

    static constexpr ShareTime interval{50};

    explicit PacedCommands(Send send) : send_(std::move(send)) { sentAt_.fill(-interval); }

    // The command waits for the next pump(), in the place of one of its kind that waits already.
    void submit(Item item, std::string command);
    // Sends what is due: of each kind after 50 ms. A command that must wait holds back those behind it: "TX1;" never
    // overtakes a frequency.
    void pump(ShareTime now);
    void flush(ShareTime now);  // sends all
    void drop() { waiting_.clear(); }
    void drop(Item item) {
        std::erase_if(waiting_, [item](const Waiting& each) { return each.item == item; });
    }
    bool empty() const { return waiting_.empty(); }

private:
    struct Waiting {
        Item item;
        std::string command;
    };
    bool rested(Item item, ShareTime now) const { return now - sentAt_[index(item)] >= interval; }
    void send(const Waiting& command, ShareTime now);

    Send send_;
    std::vector<Waiting> waiting_;  // one of a kind
    std::array<ShareTime, itemCount> sentAt_{};
};

}  // namespace corvane
