// Keeps a dragged slider from sending more than the line can carry: at most one command in 50 ms, and always the last
// one.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/tasks.h"

namespace corvane {

class CommandPacer {
public:
    using Send = std::function<void(std::string command)>;

    static constexpr Scheduler::Duration interval{50};

    // `tasks` must be destroyed with the pacer, so that no timer finds it gone. `rested` is called 50 ms after the last
    // command, once none waits.
    CommandPacer(Send send, const Tasks& tasks, std::function<void()> rested)
        : send_(std::move(send)), tasks_(tasks), rested_(std::move(rested)) {}

    // Sends the command at once, or as soon as the previous one is 50 ms old; of several that wait, only the latest is
    // sent. Of "AG0080;", "AG0085;" and "AG0090;" within 50 ms the first and the last are sent.
    void submit(std::string command);

    // Forgets the command that waits, as its value has been set in another way.
    void drop() { waiting_.reset(); }

private:
    Send send_;
    const Tasks& tasks_;
    std::function<void()> rested_;
    bool pausing_ = false;
    std::optional<std::string> waiting_;
};

}  // namespace corvane
